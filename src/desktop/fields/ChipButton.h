#pragma once

#include "desktop/fields/ChipField.h"

#include <QAbstractButton>

class QToolButton;

namespace tw::desktop::fields {

/** The name on a chip, in the colour of what it is. */
class ChipName final : public QAbstractButton
{
    Q_OBJECT

public:
    ChipName(theme::ThemeManager& themes, const icons::IconSet& icons, QWidget* parent);

    void setState(Chip::State state);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QColor color() const;
    [[nodiscard]] bool hasMark() const { return m_state == Chip::State::Missing; }

    theme::ThemeManager& m_themes;
    const icons::IconSet& m_icons;
    Chip::State m_state = Chip::State::Plain;
};

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
    theme::ThemeManager& m_themes;
    Chip m_chip;
    ChipName* m_name;
    QToolButton* m_remove;
};

} // namespace tw::desktop::fields
