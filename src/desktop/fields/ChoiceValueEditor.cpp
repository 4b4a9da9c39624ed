#include "desktop/fields/ChoiceValueEditor.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>

namespace tw::desktop::fields {

ChoiceValueEditor::ChoiceValueEditor(const QStringList& options, QWidget* parent)
    : ValueEditor(parent)
    , m_options(options)
    , m_box(new QComboBox(this))
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_box);
    setFocusProxy(m_box);
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_box->installEventFilter(this);
    connect(m_box, &QComboBox::activated, this, [this](int index) {
        const QVariant chosen = m_box->itemData(index);
        finish(chosen.isValid() ? std::optional(chosen.toString()) : std::nullopt);
        present();
    });
}

void ChoiceValueEditor::setReadOnly(bool readOnly)
{
    m_box->setEnabled(!readOnly);
}

void ChoiceValueEditor::present()
{
    m_box->clear();
    m_box->addItem(tr("Not set"));
    for (const QString& option : m_options)
        m_box->addItem(option, option);
    if (!value())
        return;
    if (!m_options.contains(*value()))
        m_box->addItem(tr("%1 (not among the choices)").arg(*value()), *value());
    m_box->setCurrentIndex(
        m_box->findData(*value(), Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

bool ChoiceValueEditor::eventFilter(QObject* watched, QEvent* event)
{
    // Scrolling over a page must not change what stands on it.
    if (event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    return ValueEditor::eventFilter(watched, event);
}

} // namespace tw::desktop::fields
