#pragma once

#include "desktop/fields/ChipField.h"

class QToolButton;

namespace tw::desktop::fields {

/** A chip of a ChipField. */
class ChipButton final : public QWidget
{
    Q_OBJECT

public:
    ChipButton(theme::ThemeManager& themes, const icons::IconSet& icons, QWidget* parent);

    [[nodiscard]] const Chip& chip() const { return m_chip; }
    void setChip(const Chip& chip);
    void setReadOnly(bool readOnly);

signals:
    void activated();
    void removeRequested();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void applyColors();

    theme::ThemeManager& m_themes;
    const icons::IconSet& m_icons;
    Chip m_chip;
    QToolButton* m_name;
    QToolButton* m_remove;
};

} // namespace tw::desktop::fields
