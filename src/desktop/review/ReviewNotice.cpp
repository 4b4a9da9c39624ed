#include "desktop/review/ReviewNotice.h"

#include "desktop/icons/IconSet.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace tw::desktop::review {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastCharacters = 16;

} // namespace

ReviewNotice::ReviewNotice(const icons::IconSet& icons, QWidget* parent)
    : QWidget(parent)
    , m_text(new QLabel(this))
    , m_button(new QToolButton(this))
{
    setObjectName(u"reviewNotice"_s);
    m_button->setText(tr("Review…"));
    m_button->setIcon(icons.icon(icons::Icon::Refresh));
    m_button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_button->setAutoRaise(true);
    m_button->setFocusPolicy(Qt::TabFocus);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 0, 4, 0);
    layout->setSpacing(8);
    layout->addWidget(m_text);
    layout->addWidget(m_button);
    connect(m_button, &QToolButton::clicked, this, &ReviewNotice::reviewRequested);
    // A narrow window cuts the text, not the button.
    m_text->setMinimumWidth(fontMetrics().averageCharWidth() * leastCharacters);
    hide();
}

void ReviewNotice::setFindings(const DiskFindings& findings)
{
    QString advice;
    if (findings.files > 0) {
        m_text->setText(
            tr("%n project file(s) changed outside Vellory since you opened it.", nullptr,
               static_cast<int>(findings.files)));
        advice = tr("Reopen the project to load the on-disk version, or save to keep yours. (This is a "
                    "read-only heads-up so a sync client or co-author's changes don't surprise you.)");
    } else {
        m_text->setText(tr(
            "%n media file(s) in the project changed on disk.", nullptr, static_cast<int>(findings.media)));
    }
    setToolTip(advice);
    // A button without a tooltip shows its text as one.
    m_button->setToolTip(advice);
    m_button->setAccessibleDescription(advice);
    setVisible(findings.files > 0 || findings.media > 0);
}

} // namespace tw::desktop::review
