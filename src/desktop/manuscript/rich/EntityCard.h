#pragma once

#include "core/foundation/Id.h"
#include "desktop/shell/DeskContext.h"

#include <QFrame>

class QLabel;

namespace tw::desktop::manuscript::rich {

enum class CardUse
{
    /** Below the pointer, gone when it leaves. */
    Glance,
    /** With the keyboard on it, so that it can be read aloud; Escape closes it, and whoever types on writes
     * on. */
    Keyboard,
};

/** What one wants to know of an entity at a glance: name, place in the codex, picture, a few facts. */
class EntityCard final : public QFrame
{
    Q_OBJECT

public:
    EntityCard(const shell::DeskContext& desk, QWidget* parent);

    /** Shows the entity beside a place on the screen; nothing happens for an unknown one. */
    void showEntity(const core::ContentId& id, const QRect& globalPlace, CardUse use);
    /** Whether it is shown and has taken the keyboard. */
    [[nodiscard]] bool hasKeyboard() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] QString facts(const core::ContentId& id) const;
    [[nodiscard]] QPixmap picture(const core::ContentId& id) const;

    shell::DeskContext m_desk;
    core::ContentId m_shown;
    QLabel* m_picture;
    QLabel* m_name;
    QLabel* m_place;
    QLabel* m_facts;
};

} // namespace tw::desktop::manuscript::rich
