#include "desktop/fields/BooleanValueEditor.h"

#include "desktop/fields/NoteLabel.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace tw::desktop::fields {

using namespace Qt::Literals::StringLiterals;

namespace {

/** As high as the other controls, so that the labels beside them stand alike. */
constexpr int rowHeight = 28;
constexpr QLatin1StringView trueName{"true"};
constexpr QLatin1StringView falseName{"false"};

} // namespace

BooleanValueEditor::BooleanValueEditor(theme::ThemeManager& themes, QWidget* parent)
    : ValueEditor(parent)
    , m_box(new QCheckBox(this))
    , m_note(new NoteLabel(themes, this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_box, 0, Qt::AlignLeading);
    layout->addWidget(m_note);
    setFocusProxy(m_box);
    m_box->setTristate(true);
    m_box->setMinimumHeight(rowHeight);
    m_box->setToolTip(tr("Yes, no, not set: a click goes on to the next"));
    connect(m_box, &QCheckBox::clicked, this, &BooleanValueEditor::takeNext);
}

void BooleanValueEditor::setReadOnly(bool readOnly)
{
    m_box->setEnabled(!readOnly);
}

void BooleanValueEditor::takeNext()
{
    // The value decides what comes next, not the order in which a check box steps.
    if (value() == trueName)
        finish(QString(falseName));
    else if (value() == falseName)
        finish(std::nullopt);
    else
        finish(QString(trueName));
    present();
}

void BooleanValueEditor::present()
{
    const bool isYes = value() == trueName;
    const bool isNo = value() == falseName;
    const bool isOther = !isYes && !isNo && !value().value_or(QString()).isEmpty();
    m_box->setCheckState(isYes ? Qt::Checked : isNo ? Qt::Unchecked : Qt::PartiallyChecked);
    m_box->setText(isYes ? tr("Yes") : isNo ? tr("No") : isOther ? *value() : tr("Not set"));
    m_note->setNote(
        isOther ? tr("Neither yes nor no. It is kept until you choose.") : QString(),
        NoteLabel::Tone::Warning);
}

} // namespace tw::desktop::fields
