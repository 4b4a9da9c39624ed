#pragma once

#include <QTextEdit>

namespace tw::desktop::fields {

/**
 * A field for plain text of any length: as high as its text, without scroll bars of its own. Tab leaves it;
 * undo belongs to the project.
 */
class GrowingTextEdit final : public QTextEdit
{
    Q_OBJECT

public:
    explicit GrowingTextEdit(QWidget* parent);

    /** The text with every character as it was put in. */
    [[nodiscard]] QString text() const;
    /** The cursor stays near where it was. */
    void setText(const QString& text);
    /** Is never lower than so many lines; 1 until set. */
    void setLeastLines(int lines);

signals:
    /** The keyboard went elsewhere, or Ctrl+Return was pressed. */
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void fitHeight();

    int m_leastLines = 1;
    bool m_isResizing = false;
};

} // namespace tw::desktop::fields
