#pragma once

#include "core/project/ProjectChanges.h"
#include "core/taxonomy/Field.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

#include <optional>

namespace tw::desktop::fields {

/**
 * The control for one value of a codex field. Shows what is stored, whatever it is: text that does not suit
 * the type is shown, marked and kept until the writer puts something else in its place.
 */
class ValueEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ValueEditor(QWidget* parent);

    /** What is stored as far as the editor knows; none when unset. */
    [[nodiscard]] const std::optional<QString>& value() const { return m_value; }
    /** Shows another stored value, in place of uncommitted typing too; emits nothing. */
    void setValue(const std::optional<QString>& value);

    /** What a screen reader says of the control, wherever it lies in the editor. */
    void nameControl(const QString& name, const QString& description = {});
    virtual void setReadOnly(bool readOnly) = 0;
    /** Emits valueEdited() for what was typed but not finished, when it makes a value. */
    virtual void commit();
    /** Takes up what moved in the project beside the value itself: names, the calendar. */
    virtual void follow(const core::project::ProjectChanges& changes);

signals:
    /** The writer is typing what is not in valueEdited() yet. */
    void typed();
    /** The writer gave the field another value, or made it unset. */
    void valueEdited(const std::optional<QString>& value);

protected:
    /** Shows value(). */
    virtual void present() = 0;
    /** Takes the writer's value; says so when it is another one. */
    void finish(const std::optional<QString>& value);
    /** The same for text, where empty is unset and the text that was shown is no edit. */
    void finishText(const QString& text, const QString& shownText);
    /** Shows the value again when the control holds other text; false when it does not. */
    bool takeBack(const QString& text, const QString& shownText);

private:
    std::optional<QString> m_value;
};

/** The control that suits the field's type. The parent owns it. */
[[nodiscard]] ValueEditor* makeValueEditor(
    const shell::DeskContext& desk, const core::taxonomy::Field& field, QWidget* parent);

} // namespace tw::desktop::fields
