#pragma once

#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/rich/RichBody.h"
#include "desktop/manuscript/rich/RichFormats.h"
#include "desktop/shell/DeskContext.h"

#include "app/typing/TypingCorrection.h"
#include "core/foundation/Id.h"

#include <functional>

class QTextTable;

namespace tw::desktop::manuscript {
class NameCompletion;
class TypingBursts;
} // namespace tw::desktop::manuscript

namespace tw::desktop::manuscript::rich {

class EntityCard;
enum class CardUse;
class EntityNames;
class FootnoteMarks;
class PageImages;

/** What can be switched on and off for a stretch of text. */
enum class TextToggle
{
    Bold,
    Italic,
    Underline,
    Strikethrough,
    Superscript,
    Subscript,
    Code,
};

/**
 * The text of one document as it will be read: a sheet on which Markdown shows as headings, lists, tables and
 * styled text. Carries its edits to the document by itself, in bursts and named steps. Knows nothing of tabs:
 * it can stand alone, or below others in a longer text.
 */
class RichPage final : public BodyEditor
{
    Q_OBJECT

public:
    RichPage(const shell::DeskContext& desk, const core::ContentId& documentId, QWidget* parent);
    ~RichPage() override;

    [[nodiscard]] const core::ContentId& documentId() const { return m_documentId; }
    [[nodiscard]] TypingBursts& bursts() { return *m_bursts; }

    void applyBody(const core::document::DocumentBody& body) override;
    [[nodiscard]] core::document::DocumentBody currentBody() override;
    [[nodiscard]] qint64 words() override;

    // Styles of the text at the cursor or in the selection; each change is one named step

    [[nodiscard]] bool hasStyle(TextToggle toggle) const;
    void toggleStyle(TextToggle toggle, const QString& label);
    [[nodiscard]] markup::RunStyle currentStyle() const;
    /** Changes the style of the selected text, or of what is typed next. */
    void changeStyle(const QString& label, const std::function<void(markup::RunStyle&)>& change);

    // Blocks that the cursor or the selection touches

    [[nodiscard]] BlockShape currentShape() const;
    void changeBlocks(const QString& label, const std::function<void(BlockShape&)>& change);
    /** Makes items of the blocks, or paragraphs again when they are such items. */
    void toggleList(markup::BlockKind itemKind, const QString& label);
    /** Nests items, indents other blocks; -1 goes back. */
    void indentBlocks(int step);

    // Inserting at the cursor

    void insertRule();
    void insertPageBreak();
    void insertTable(int rows, int columns);
    /** An image of the project's assets, below the paragraph of the cursor. */
    void insertImage(const QString& assetPath, const QString& description);
    void insertFootnoteReference(const QString& label);
    void setLink(const QString& target);
    /** Replaces the selection by what stands in the Markdown. */
    void insertMarkdown(const QString& markdown);

    [[nodiscard]] bool isInTable() const;
    enum class TableEdit
    {
        RowAbove,
        RowBelow,
        ColumnBefore,
        ColumnAfter,
        RemoveRow,
        RemoveColumn,
        RemoveTable,
    };
    void editTable(TableEdit edit, const QString& label);

    /** Puts the cursor behind the first reference to the footnote; false when there is none. */
    bool showFootnoteReference(const QString& label);
    /** The same for a definition that stands in the text. */
    bool showFootnoteDefinition(const QString& label);
    /** Labels of the references, in the order of the text. */
    [[nodiscard]] QStringList footnoteReferences() const;

    /** Names of the codex get a quiet line below them. */
    void setMentionsShown(bool areShown);
    /** Follows the link, note or name at the cursor; false when there is none. */
    bool followAtCursor();
    /** Shows the card of the entity that is named at the cursor, with the keyboard on it; false when none is.
     */
    bool showCardAtCursor();

    void setTypingRules(const app::typing::TypingRules& rules) { m_typingRules = rules; }

    /** Paragraphs other than the cursor's become quiet. */
    void setFocusedOnParagraph(bool isOn);

    void pastePlainText();
    [[nodiscard]] QString selectedMarkdown() const;

signals:
    /** A name of the codex was followed by a click or a key. */
    void entityActivated(const tw::core::ContentId& id);
    /** A reference was. */
    void footnoteActivated(const QString& label);
    void linkActivated(const QString& target);
    /** A picture without a file was pasted; whoever keeps the project's assets inserts it. */
    void imagePasted(const QImage& image);

protected:
    void takeUpStyle() override;
    void takeUpTheme() override;
    void paintSheet(QPainter& painter, const QRect& clip) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void restyle();
    void refreshFormats();
    void markPlace();
    void showPlace(int position);
    /** Runs an edit as one step of the history and one change of the text document. */
    void asStep(const QString& label, const std::function<void(QTextCursor& cursor)>& edit);

    // Keys
    bool handleKey(QKeyEvent& event);
    bool handleReturn(Qt::KeyboardModifiers modifiers);
    bool handleBackspace();
    bool handleTab(int step);
    void prepareTyping();
    void correctTyped(QStringView typed);
    void breakParagraph(QTextCursor& cursor);

    void insertBlocks(QTextCursor& cursor, const std::vector<markup::Block>& blocks);
    void insertPlainText(const QString& text);
    void dressTable(QTextTable& table, const std::vector<markup::ColumnAlignment>& columns);
    /** Gives the numbered items of the list around the block their numbers. */
    void renumber(const QTextBlock& block);
    [[nodiscard]] std::vector<QTextBlock> selectedBlocks() const;

    // Names of the codex
    [[nodiscard]] core::ContentId entityAt(const QTextCursor& cursor, QTextCursor* name) const;
    bool openEntityAtCursor();
    bool followNote(const QTextCharFormat& format);
    bool followLink(const QTextCharFormat& format);
    void showCard(const core::ContentId& id, QTextCursor name, CardUse use);
    void hideCard();
    void paintMentions(QPainter& painter, const QTextBlock& block, const QRectF& rect) const;
    void offerNames();
    void completeName(const QString& name);
    bool takesCompletionKey(const QKeyEvent& event);
    void closePopups();

    void paintBlock(QPainter& painter, const QTextBlock& block, const QRectF& rect) const;
    void paintMarker(
        QPainter& painter, const QTextBlock& block, const BlockShape& shape, const QRectF& rect) const;

    shell::DeskContext m_desk;
    core::ContentId m_documentId;
    RichFormats m_formats;
    RichBody m_body;
    PageImages* m_images;
    FootnoteMarks* m_footnotes;
    EntityNames* m_names;
    TypingBursts* m_bursts = nullptr;
    /** Made when first needed. */
    EntityCard* m_card = nullptr;
    NameCompletion* m_completion = nullptr;
    bool m_areMentionsShown = false;
    app::typing::TypingRules m_typingRules;
    bool m_isFocusedOnParagraph = false;
    bool m_hasQuietRanges = false;
};

} // namespace tw::desktop::manuscript::rich
