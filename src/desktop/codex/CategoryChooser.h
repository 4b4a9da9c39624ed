#pragma once

#include "core/foundation/Id.h"

#include <QFrame>

class QLineEdit;
class QListWidget;

namespace tw::core::entity {
class Entity;
}
namespace tw::core::project {
class Project;
}

namespace tw::desktop::codex {

/** A list of the categories an entity can move into; pops up, with a filter, and closes when one is chosen.
 * Deletes itself. */
class CategoryChooser final : public QFrame
{
    Q_OBJECT

public:
    CategoryChooser(
        const core::project::Project& project, const core::entity::Entity& entity, QWidget* parent);

    /** Shows it beneath a widget. */
    void popUpUnder(const QWidget& anchor);

signals:
    /** Null for no category. */
    void chosen(const tw::core::CategoryId& id);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void filter(const QString& text);
    void choose();

    QLineEdit* m_filter;
    QListWidget* m_list;
};

} // namespace tw::desktop::codex
