#pragma once

#include "desktop/codex/EntitySection.h"
#include "desktop/codex/FieldGroups.h"

#include <map>

class QGridLayout;
class QPushButton;

namespace tw::desktop::fields {
class ValueEditor;
}

namespace tw::desktop::codex {

class FieldRow;

/** The values of an entity, grouped by where their fields come from, each in the control of its type. */
class FieldsSection final : public EntitySection
{
    Q_OBJECT

public:
    FieldsSection(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent);
    ~FieldsSection() override;

    void showEntity(const core::entity::Entity& entity) override;
    void follow(const core::project::ProjectChanges& changes) override;
    void commit() override;
    void setReadOnly(bool readOnly) override;

    /** The control of a field that is not fixed; none when there is no such field. */
    [[nodiscard]] fields::ValueEditor* editor(const QString& key) const;
    /** How many fields there are to fill in, and how many are. */
    [[nodiscard]] int fieldCount() const;
    [[nodiscard]] int filledCount() const;

private:
    using RowMap = std::map<QString, std::unique_ptr<FieldRow>>;

    void arrange();
    void clearLayout();
    [[nodiscard]] std::unique_ptr<FieldRow> makeRow(const core::entity::ResolvedField& resolved);
    [[nodiscard]] QWidget* makeOwnMenu(const QString& key, QWidget* parent);
    void storeValue(const QString& key, const std::optional<QString>& value);

    QGridLayout* m_grid;
    QPushButton* m_add;
    std::vector<FieldGroup> m_groups;
    QStringList m_titles;
    std::vector<QWidget*> m_headings;
    RowMap m_rows;
    bool m_isReadOnly = false;
};

} // namespace tw::desktop::codex
