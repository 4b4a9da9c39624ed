#pragma once

#include "core/content/ContentObject.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace tw::desktop::shell {
class PendingEdit;
}

namespace tw::desktop::inspector {

/** What every object has: tags, plot threads, audiences, lock, exclusion from the assistant, pin. */
class ObjectSection final : public QWidget
{
    Q_OBJECT

public:
    ObjectSection(const shell::DeskContext& desk, QWidget* parent);

    /** Null shows nothing. What was typed for the object before is committed first. */
    void showObject(const core::ContentId& id);

private:
    struct Choice
    {
        QString key;
        QString label;
        QIcon icon;
    };

    template <class Command, class Value>
    void apply(Value value);
    template <class Command, class Value>
    void applyUnlessLocked(Value value);
    [[nodiscard]] const core::content::ContentObject* object() const;
    [[nodiscard]] static QWidget* makeGroup(const QString& title, QWidget*& box, QWidget* parent);
    void fillThreads();
    void fillAudiences();
    void fillChoices(
        QWidget& box, const std::vector<Choice>& choices, const QStringList& chosen,
        void (ObjectSection::*handler)(const QString&, bool));
    void toggleThread(const QString& threadId, bool on);
    void toggleAudience(const QString& audience, bool on);
    void commitTags();

    shell::DeskContext m_desk;
    core::ContentId m_id;
    QLineEdit* m_tags;
    shell::PendingEdit* m_heldTags;
    QWidget* m_threadGroup = nullptr;
    QWidget* m_threads = nullptr;
    QWidget* m_audienceGroup = nullptr;
    QWidget* m_audiences = nullptr;
    QCheckBox* m_locked;
    QCheckBox* m_aiExcluded;
    QCheckBox* m_pinned;
};

} // namespace tw::desktop::inspector
