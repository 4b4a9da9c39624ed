#pragma once

#include "desktop/manuscript/TextFinder.h"
#include "desktop/shell/DeskContext.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace tw::desktop::manuscript {

class BodyEditor;
class TypingBursts;

/** Texts that follow each other on one page; a bar searches one of them at a time. */
class TextSequence
{
public:
    TextSequence() = default;
    virtual ~TextSequence() = default;
    Q_DISABLE_COPY_MOVE(TextSequence)

    /** Has the bar search the nearest other text with a match, around the ends. False when no other has one.
     */
    virtual bool goOn(const TextFinder& finder, bool isForward) = 0;
    /** Has the bar search each text with a match in turn, and does the work on it. */
    virtual void visitAll(const TextFinder& finder, const std::function<void()>& work) = 0;
};

/** Finds and replaces in the text above it. Hidden until it is asked for. */
class FindBar final : public QWidget
{
    Q_OBJECT

public:
    FindBar(const shell::DeskContext& desk, QWidget* parent);

    /** Whose text is searched from now on. */
    void setEditor(BodyEditor* editor, TypingBursts* bursts);
    /** For a page of several texts; must outlive the bar. */
    void setSequence(TextSequence* sequence) { m_sequence = sequence; }

    enum class Row
    {
        Find,
        FindAndReplace,
    };
    /** Shows the bar with the selected words in it, and puts the cursor there. */
    void open(Row row);
    void close();
    /** To the next place, or the previous one; begins again at the other end. */
    void step(bool isForward);

signals:
    /** A place is selected in the text that is searched. */
    void placeShown();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QToolButton* addSwitch(const QString& text, const QString& name);
    [[nodiscard]] app::search::TextQuery query() const;
    void search();
    void searchFrom(int position);
    void show(const std::optional<FoundPlace>& place);
    void countPlaces();
    void replaceOne();
    void replaceAll();
    /** In the text that is searched now; gives how many. */
    qsizetype replaceAllHere();

    shell::DeskContext m_desk;
    QPointer<BodyEditor> m_editor;
    QPointer<TypingBursts> m_bursts;
    TextSequence* m_sequence = nullptr;
    TextFinder m_finder;
    QTimer m_count;
    QLineEdit* m_text;
    QLineEdit* m_replacement;
    QLabel* m_found;
    QToolButton* m_case;
    QToolButton* m_word;
    QToolButton* m_expression;
    QWidget* m_replaceRow;
};

} // namespace tw::desktop::manuscript
