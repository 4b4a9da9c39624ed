#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace tw::desktop::fields {

/**
 * The keys that every editor of a value treats alike: undo and redo go to the project, not to the editor's
 * own history, and Escape takes back what was typed since the value was last stored. Owned by the editor.
 */
class EditorKeys final : public QObject
{
    Q_OBJECT

public:
    /** `takeBack` gives false when there was nothing to take back: then Escape goes on, to a dialog perhaps.
     */
    EditorKeys(QWidget& editor, std::function<bool()> takeBack);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<bool()> m_takeBack;
};

} // namespace tw::desktop::fields
