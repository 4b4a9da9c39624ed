#include "desktop/fields/ChipField.h"

#include "desktop/fields/ChipButton.h"
#include "desktop/fields/FlowLayout.h"

#include <QLineEdit>

namespace tw::desktop::fields {

namespace {

constexpr int spacing = 4;
constexpr int smallestField = 140;

} // namespace

ChipField::ChipField(theme::ThemeManager& themes, const icons::IconSet& icons, QWidget* parent)
    : QWidget(parent)
    , m_themes(themes)
    , m_icons(icons)
    , m_layout(new FlowLayout(FlowLayout::LastItem::FillsItsLine, spacing, this))
    , m_edit(new QLineEdit(this))
{
    m_layout->insertWidget(0, m_edit);
    m_edit->setMinimumWidth(smallestField);
    setFocusProxy(m_edit);
}

void ChipField::setChips(const std::vector<Chip>& chips)
{
    while (m_chips.size() > chips.size()) {
        m_layout->removeWidget(m_chips.back());
        m_chips.back()->hide();
        m_chips.back()->deleteLater();
        m_chips.pop_back();
    }
    while (m_chips.size() < chips.size()) {
        const auto index = static_cast<int>(m_chips.size());
        auto* const chip = new ChipButton(m_themes, m_icons, this);
        chip->setReadOnly(m_isReadOnly);
        connect(chip, &ChipButton::activated, this, [this, index] { emit chipActivated(index); });
        connect(chip, &ChipButton::removeRequested, this, [this, index] { emit removeRequested(index); });
        m_layout->insertWidget(index, chip);
        m_chips.push_back(chip);
        chip->show();
    }
    for (std::size_t index = 0; index < chips.size(); ++index) {
        if (m_chips[index]->chip() != chips[index])
            m_chips[index]->setChip(chips[index]);
    }
    // The field comes after the chips in the order of Tab.
    for (ChipButton* const chip : m_chips)
        setTabOrder(chip, m_edit);
    updateGeometry();
}

void ChipField::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    m_edit->setHidden(readOnly);
    for (ChipButton* const chip : m_chips)
        chip->setReadOnly(readOnly);
}

} // namespace tw::desktop::fields
