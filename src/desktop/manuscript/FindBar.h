#pragma once

#include "desktop/manuscript/TextFinder.h"
#include "desktop/shell/DeskContext.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace tw::desktop::manuscript {

class BodyEditor;
class TypingBursts;

/** Finds and replaces in the text above it. Hidden until it is asked for. */
class FindBar final : public QWidget
{
    Q_OBJECT

public:
    FindBar(const shell::DeskContext& desk, QWidget* parent);

    /** Whose text is searched from now on; both must outlive the bar or be replaced. */
    void setEditor(BodyEditor* editor, TypingBursts* bursts);

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

    shell::DeskContext m_desk;
    BodyEditor* m_editor = nullptr;
    TypingBursts* m_bursts = nullptr;
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
