#pragma once

#include "core/document/Document.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

#include <vector>

class QScrollArea;
class QToolButton;
class QVBoxLayout;

namespace tw::desktop::fields {
class GrowingTextEdit;
}

namespace tw::desktop::manuscript {

/** The footnotes and endnotes of a document, below its text: to read, to write, and to find where they
 * belong. */
class NotesPane final : public QWidget
{
    Q_OBJECT

public:
    NotesPane(const shell::DeskContext& desk, const core::ContentId& documentId, QWidget* parent);

    /** Shows the notes in the order of the references. */
    void showNotes(const std::vector<core::document::Footnote>& notes, const QStringList& references);
    /** The notes of a locked document can be read and not written. */
    void setReadOnly(bool isReadOnly);
    [[nodiscard]] bool hasNotes() const { return !m_rows.empty(); }
    /** Puts the cursor into the note's text; false when there is no such note. */
    bool focusNote(const QString& label);
    /** Carries what was typed to the project. */
    void commit();

    [[nodiscard]] QSize sizeHint() const override;

signals:
    /** The place in the text that refers to the note was asked for. */
    void referenceRequested(const QString& label);

private:
    struct Row
    {
        core::document::Footnote note;
        QWidget* widget = nullptr;
        fields::GrowingTextEdit* text = nullptr;
        QToolButton* remove = nullptr;
    };

    void applyReadOnly(const Row& row) const;
    [[nodiscard]] Row makeRow(const core::document::Footnote& note);

    shell::DeskContext m_desk;
    core::ContentId m_documentId;
    QScrollArea* m_scroll;
    QVBoxLayout* m_layout;
    std::vector<Row> m_rows;
    bool m_isReadOnly = false;
};

} // namespace tw::desktop::manuscript
