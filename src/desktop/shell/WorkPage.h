#pragma once

#include "core/foundation/Id.h"

#include <QList>
#include <QWidget>

#include <vector>

namespace tw::desktop::shell {

struct TextPassage;

/** What a page shows. */
struct PageAddress
{
    /** Null for all of a kind, where a view takes that. */
    core::ContentId objectId;
    /** One of several ways to look at it; empty for the object's own page. */
    QString view;

    friend bool operator==(const PageAddress&, const PageAddress&) = default;
};

/** One tab in the centre of the window: the editor or page of one object. Owned by the work area. */
class WorkPage : public QWidget
{
    Q_OBJECT

public:
    WorkPage(PageAddress address, QWidget* parent);

    [[nodiscard]] const PageAddress& address() const { return m_address; }
    [[nodiscard]] const core::ContentId& objectId() const { return m_address.objectId; }

    /** The object's name as the tab shows it. */
    [[nodiscard]] virtual QString title() const = 0;
    [[nodiscard]] virtual QIcon icon() const = 0;
    /** The objects whose changes are changes of the page; the object itself unless a page shows more. */
    [[nodiscard]] virtual std::vector<core::ContentId> shownObjects() const;
    /** Where the keyboard goes when the page is shown. */
    virtual void takeFocus() = 0;
    /** Goes to a place in the page's text; nothing where it is not found. */
    virtual void showPassage(const TextPassage& passage);
    /** What the keyboard goes round through, in order: first the page's own content, then what may stand
     * beside it. */
    [[nodiscard]] virtual QList<QWidget*> parts();
    /** Text for the status bar ("1,204 words"); empty for none. */
    [[nodiscard]] virtual QString statusText() const;

signals:
    void titleChanged();
    void statusTextChanged();

private:
    PageAddress m_address;
};

} // namespace tw::desktop::shell
