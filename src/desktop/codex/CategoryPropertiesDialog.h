#pragma once

#include "desktop/codex/CategoryProperties.h"
#include "desktop/shell/DeskContext.h"

#include <QDialog>

class QListWidget;
class QPushButton;
class QTreeWidget;
class QVBoxLayout;

namespace tw::desktop::fields {
class NoteLabel;
}

namespace tw::desktop::codex {

/** What the dialog is about: read once when it opens. */
struct CategoryPropertiesSubject
{
    QString categoryName;
    /** The entity the category hangs under; empty when it does not. */
    QString entityName;
    CategoryProperties properties;
    core::entity::Schema fromAbove;
};

/** Edits the fields of a category and what comes to it from above. Changes nothing by itself. */
class CategoryPropertiesDialog final : public QDialog
{
    Q_OBJECT

public:
    CategoryPropertiesDialog(
        const shell::DeskContext& desk, CategoryPropertiesSubject subject, QWidget* parent);

    /** As it stands in the dialog. */
    [[nodiscard]] const CategoryProperties& properties() const { return m_properties; }

private:
    void makeOwnList(QVBoxLayout& layout);
    void makeAboveList(QVBoxLayout& layout);
    [[nodiscard]] bool isUnderEntity() const { return !m_subject.entityName.isEmpty(); }

    void showFields(int current);
    [[nodiscard]] int currentField() const;
    void addField();
    void editField();
    void moveField(int step);
    void removeField();
    void refreshButtons();
    void setFromAbove(const QString& key, bool isChecked);
    [[nodiscard]] bool isCheckedFromAbove(const QString& key) const;

    shell::DeskContext m_desk;
    CategoryPropertiesSubject m_subject;
    CategoryProperties m_properties;
    QTreeWidget* m_own;
    QListWidget* m_above = nullptr;
    fields::NoteLabel* m_note;
    QPushButton* m_edit = nullptr;
    QPushButton* m_moveUp = nullptr;
    QPushButton* m_moveDown = nullptr;
    QPushButton* m_remove = nullptr;
};

/** Opens the dialog for a category and applies what comes out of it as one step. */
void editCategoryProperties(const shell::DeskContext& desk, const core::CategoryId& id, QWidget* parent);

} // namespace tw::desktop::codex
