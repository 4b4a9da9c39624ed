#pragma once

#include "core/foundation/Id.h"

#include <QWidget>

namespace tw::desktop::shell {

struct TextPassage;

/** One tab in the centre of the window: the editor or page of one object. Owned by the work area. */
class WorkPage : public QWidget
{
    Q_OBJECT

public:
    WorkPage(const core::ContentId& objectId, QWidget* parent);

    [[nodiscard]] const core::ContentId& objectId() const { return m_objectId; }

    /** The object's name as the tab shows it. */
    [[nodiscard]] virtual QString title() const = 0;
    [[nodiscard]] virtual QIcon icon() const = 0;
    /** Where the keyboard goes when the page is shown. */
    virtual void takeFocus() = 0;
    /** Goes to a place in the page's text; nothing where it is not found. */
    virtual void showPassage(const TextPassage& passage);
    /** Text for the status bar ("1,204 words"); empty for none. */
    [[nodiscard]] virtual QString statusText() const;

signals:
    void titleChanged();
    void statusTextChanged();

private:
    core::ContentId m_objectId;
};

} // namespace tw::desktop::shell
