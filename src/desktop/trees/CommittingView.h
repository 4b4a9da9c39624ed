#pragma once

#include "desktop/shell/PendingEdit.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScopedValueRollback>

namespace tw::desktop::trees {

/**
 * An item view whose open editor is committed and closed before anything else is done with the project. What
 * the program does in passing leaves the editor alone, for the next key belongs to it.
 */
template <class View>
class CommittingView : public View
{
public:
    CommittingView(shell::ProjectSession& session, QWidget* parent)
        : View(parent)
        , m_typing(new shell::PendingEdit(session, this, [this] { finishEditing(); }))
    {}

    using View::edit;

protected:
    /** Whether what stands in the editor can be stored; what cannot is left there to be mended. */
    virtual bool isStorable(const QWidget&) const { return true; }

    bool edit(const QModelIndex& index, QAbstractItemView::EditTrigger trigger, QEvent* event) override
    {
        const bool isEditing = View::edit(index, trigger, event);
        QWidget* const editor = isEditing ? this->indexWidget(index) : nullptr;
        if (editor && editor != m_editor)
            follow(*editor);
        return isEditing;
    }

    void commitData(QWidget* editor) override
    {
        m_typing->end();
        if (isOpen(editor))
            View::commitData(editor);
    }

    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override
    {
        m_typing->end();
        if (!isOpen(editor))
            return;
        const QScopedValueRollback<const QWidget*> closing(m_closing, editor);
        View::closeEditor(editor, hint);
    }

private:
    void follow(QWidget& editor)
    {
        m_editor = &editor;
        // The last words of an editor may come when the view is half gone.
        const auto begin = [typing = m_typing] { typing->begin(); };
        QList<QLineEdit*> lines = editor.findChildren<QLineEdit*>();
        if (auto* const line = qobject_cast<QLineEdit*>(&editor))
            lines.append(line);
        for (const QLineEdit* const line : lines)
            QObject::connect(line, &QLineEdit::textEdited, m_typing, begin);
        for (const QPlainTextEdit* const text : editor.findChildren<QPlainTextEdit*>())
            QObject::connect(text, &QPlainTextEdit::textChanged, m_typing, begin);
        QObject::connect(&editor, &QObject::destroyed, m_typing, [typing = m_typing] { typing->end(); });
    }

    void finishEditing()
    {
        const QPointer<QWidget> editor = m_editor;
        if (isOpen(editor))
            commitData(editor);
        // The commit may have made the rows anew, and the editor is let go.
        if (isOpen(editor) && isStorable(*editor))
            closeEditor(editor, QAbstractItemDelegate::NoHint);
    }

    /**
     * The view lets go of an editor that it closes, takes the focus from it and hides it, and deletes it
     * later; losing the focus, the editor asks once more.
     */
    bool isOpen(const QWidget* editor) const { return editor && editor != m_closing && !editor->isHidden(); }

    shell::PendingEdit* m_typing;
    QPointer<QWidget> m_editor;
    const QWidget* m_closing = nullptr;
};

} // namespace tw::desktop::trees
