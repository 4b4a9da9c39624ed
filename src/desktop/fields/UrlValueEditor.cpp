#include "desktop/fields/UrlValueEditor.h"

#include "desktop/fields/EditorKeys.h"
#include "desktop/icons/IconSet.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>
#include <QUrl>

namespace tw::desktop::fields {

using namespace Qt::Literals::StringLiterals;

QUrl openableUrl(const QString& text)
{
    const QUrl url = QUrl::fromUserInput(text.trimmed());
    const bool isPage = url.scheme() == "http"_L1 || url.scheme() == "https"_L1;
    const bool isOpenable =
        url.isValid() && ((isPage && !url.host().isEmpty()) || url.scheme() == "mailto"_L1);
    return isOpenable ? url : QUrl();
}

UrlValueEditor::UrlValueEditor(const icons::IconSet& icons, QWidget* parent)
    : ValueEditor(parent)
    , m_edit(new QLineEdit(this))
    , m_open(new QToolButton(this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_edit);
    layout->addWidget(m_open);
    setFocusProxy(m_edit);
    m_open->setIcon(icons.icon(icons::Icon::Url));
    m_open->setAutoRaise(true);
    m_open->setToolTip(tr("Open in the browser"));
    m_open->setAccessibleName(m_open->toolTip());
    new EditorKeys(*m_edit, [this] { return takeBack(m_edit->text(), value().value_or(QString())); });
    connect(m_edit, &QLineEdit::textEdited, this, &UrlValueEditor::typed);
    connect(m_edit, &QLineEdit::textChanged, this, &UrlValueEditor::refreshButton);
    connect(m_edit, &QLineEdit::editingFinished, this, &UrlValueEditor::commit);
    connect(m_open, &QToolButton::clicked, this, [this] {
        QDesktopServices::openUrl(openableUrl(m_edit->text()));
    });
    refreshButton();
}

void UrlValueEditor::setReadOnly(bool readOnly)
{
    m_edit->setReadOnly(readOnly);
}

void UrlValueEditor::commit()
{
    finishText(m_edit->text().trimmed(), value().value_or(QString()).trimmed());
}

void UrlValueEditor::present()
{
    m_edit->setText(value().value_or(QString()));
    m_edit->setCursorPosition(0);
}

void UrlValueEditor::refreshButton()
{
    m_open->setEnabled(!openableUrl(m_edit->text()).isEmpty());
}

} // namespace tw::desktop::fields
