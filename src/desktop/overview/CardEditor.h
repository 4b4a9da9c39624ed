#pragma once

#include <QFrame>

class QLineEdit;
class QPlainTextEdit;

namespace tw::desktop::overview {

/** Title and synopsis of a card while they are written. Tab goes from one to the other. */
class CardEditor final : public QFrame
{
    Q_OBJECT

public:
    explicit CardEditor(QWidget* parent);
    ~CardEditor() override;

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString synopsis() const;
    void setTexts(const QString& title, const QString& synopsis);

signals:
    /** Return in the title, Ctrl+Return, or the keyboard went elsewhere. */
    void finished();
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void finish();

    bool m_isDone = false;
    QLineEdit* m_title;
    QPlainTextEdit* m_synopsis;
};

} // namespace tw::desktop::overview
