#pragma once

#include "core/entity/Schema.h"
#include "desktop/shell/DeskContext.h"

class QHBoxLayout;
class QLabel;
class QWidget;

namespace tw::desktop::fields {
class NoteLabel;
class ValueEditor;
} // namespace tw::desktop::fields

namespace tw::desktop::codex {

/**
 * The label and the control of one field on an entity's page. Both are children of a part of the page; they
 * go when the row goes, but not before the signal they may be in the middle of.
 */
class FieldRow
{
public:
    FieldRow(const shell::DeskContext& desk, const core::entity::ResolvedField& resolved, QWidget* parent);
    ~FieldRow();

    FieldRow(const FieldRow&) = delete;
    FieldRow& operator=(const FieldRow&) = delete;

    [[nodiscard]] const core::entity::ResolvedField& resolved() const { return m_resolved; }
    [[nodiscard]] QLabel* label() const { return m_label; }
    [[nodiscard]] QWidget* body() const { return m_body; }
    /** None for a fixed field, whose value is only shown. */
    [[nodiscard]] fields::ValueEditor* editor() const { return m_editor; }

    /** A button behind the control; hidden while the row is read-only. */
    void addButton(QWidget* button);
    void setReadOnly(bool readOnly);
    /** Shows what is stored where it is not what is shown, and whether it still has to be filled in. */
    void showValue(const core::entity::Entity& entity);

private:
    void makeLabel(QWidget* parent);
    void makeEditor(const shell::DeskContext& desk);
    void makeFixedValue(const shell::DeskContext& desk);

    core::entity::ResolvedField m_resolved;
    QLabel* m_label = nullptr;
    QWidget* m_body = nullptr;
    QHBoxLayout* m_line = nullptr;
    fields::ValueEditor* m_editor = nullptr;
    fields::NoteLabel* m_required = nullptr;
    QWidget* m_button = nullptr;
};

} // namespace tw::desktop::codex
