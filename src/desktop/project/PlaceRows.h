#pragma once

#include "desktop/project/NewPlace.h"
#include "desktop/shell/DeskContext.h"

#include <QObject>

class QButtonGroup;
class QFormLayout;
class QLineEdit;

namespace tw::desktop::fields {
class NoteLabel;
}

namespace tw::desktop::project {

/**
 * The rows of a form that ask where a project is to come into being: name, place, form, and beneath them the
 * path that comes of it or why it cannot be. Lives as long as the dialog it belongs to.
 */
class PlaceRows final : public QObject
{
    Q_OBJECT

public:
    PlaceRows(const shell::DeskContext& desk, QFormLayout& form, QWidget* dialog);

    [[nodiscard]] NewPlace place() const;
    void setPlace(const NewPlace& place);

signals:
    /** Whether a project can come into being at the place is known anew. */
    void checked(bool isPossible);

private:
    void addFormChoice(QFormLayout& form);
    void browse();
    void check();

    QWidget* m_dialog;
    QLineEdit* m_name;
    QLineEdit* m_folder;
    QButtonGroup* m_form;
    fields::NoteLabel* m_explanation;
    fields::NoteLabel* m_note;
};

} // namespace tw::desktop::project
