#include "desktop/overview/CardEditor.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace tw::desktop::overview {

CardEditor::CardEditor(QWidget* parent)
    : QFrame(parent)
    , m_title(new QLineEdit(this))
    , m_synopsis(new QPlainTextEdit(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(m_title);
    layout->addWidget(m_synopsis);
    setAutoFillBackground(true);
    setFocusProxy(m_title);
    m_title->setAccessibleName(tr("Title"));
    m_title->setPlaceholderText(tr("Title"));
    m_synopsis->setAccessibleName(tr("Synopsis"));
    m_synopsis->setPlaceholderText(tr("What happens here"));
    m_synopsis->setTabChangesFocus(true);
    m_title->installEventFilter(this);
    m_synopsis->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* before, const QWidget* now) {
        const bool wasHere = before && isAncestorOf(before);
        if (wasHere && now && now != this && !isAncestorOf(now))
            finish();
    });
}

CardEditor::~CardEditor()
{
    // The fields go after this, and the keyboard with one of them.
    qApp->disconnect(this);
}

void CardEditor::finish()
{
    // The keyboard leaves once more while the editor is taken away.
    if (std::exchange(m_isDone, true))
        return;
    emit finished();
}

QString CardEditor::title() const
{
    return m_title->text();
}

QString CardEditor::synopsis() const
{
    return m_synopsis->toPlainText();
}

void CardEditor::setTexts(const QString& title, const QString& synopsis)
{
    m_title->setText(title);
    m_synopsis->setPlainText(synopsis);
    m_title->selectAll();
}

void CardEditor::keyPressEvent(QKeyEvent* event)
{
    // What the fields did not want must not reach the list.
    event->accept();
}

bool CardEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    const auto* const key = static_cast<QKeyEvent*>(event);
    const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (isReturn && (watched == m_title || key->modifiers().testFlag(Qt::ControlModifier))) {
        finish();
        return true;
    }
    if (key->key() == Qt::Key_Escape) {
        m_isDone = true;
        emit cancelled();
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace tw::desktop::overview
