#pragma once

#include "core/foundation/Id.h"

#include <QObject>

namespace tw::desktop::shell {

/** A place in a text as it reads: some words, and a little of what stands before and after them. */
struct TextPassage
{
    QString before;
    QString words;
    QString after;
};

/** What the writer looks at: panels say what was selected or asked for, and follow what others say. */
class Navigator final : public QObject
{
    Q_OBJECT

public:
    explicit Navigator(QObject* parent = nullptr);

    /** The object whose properties are shown; null for none. */
    [[nodiscard]] const core::ContentId& current() const { return m_current; }
    void setCurrent(const core::ContentId& id);

    /** Asks for the object's page or editor in the centre of the window. */
    void open(const core::ContentId& id);

    /** Asks for a view of the object, or of all of its kind (null), as shell::PageAddress names it. */
    void openView(const core::ContentId& id, const QString& view);

    /** Opens the object's page at a place in its text. */
    void openPassage(const core::ContentId& id, const TextPassage& passage);

    /** The audience as which the codex and the manuscript are looked at; empty for a look at everything. */
    [[nodiscard]] const QString& audience() const { return m_audience; }
    void setAudience(const QString& audience);

    /** A line for the status bar: something happened that needs no decision. */
    void say(const QString& text);

signals:
    void currentChanged(const tw::core::ContentId& id);
    void openRequested(const tw::core::ContentId& id);
    void viewRequested(const tw::core::ContentId& id, const QString& view);
    /** Comes after openRequested() for the same object. */
    void passageRequested(const tw::core::ContentId& id, const tw::desktop::shell::TextPassage& passage);
    void audienceChanged(const QString& audience);
    void said(const QString& text);

private:
    core::ContentId m_current;
    QString m_audience;
};

} // namespace tw::desktop::shell
