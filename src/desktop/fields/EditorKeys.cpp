#include "desktop/fields/EditorKeys.h"

#include <QKeyEvent>
#include <QWidget>

namespace tw::desktop::fields {

EditorKeys::EditorKeys(QWidget& editor, std::function<bool()> takeBack)
    : QObject(&editor)
    , m_takeBack(std::move(takeBack))
{
    editor.installEventFilter(this);
}

bool EditorKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto* const key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            // Not accepted, so that the menu's shortcut gets it; filtered, so that the editor does not.
            event->ignore();
            return true;
        }
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
        m_takeBack())
        return true;
    return QObject::eventFilter(watched, event);
}

} // namespace tw::desktop::fields
