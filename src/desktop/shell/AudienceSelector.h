#pragma once

#include "core/foundation/Id.h"
#include "desktop/shell/DeskContext.h"

#include <QModelIndex>
#include <QWidget>

#include <functional>

class QComboBox;

namespace tw::desktop::shell {

/**
 * Chooses as which audience the codex and the manuscript are looked at. Hidden while the project has no
 * audiences.
 */
class AudienceSelector final : public QWidget
{
    Q_OBJECT

public:
    AudienceSelector(const DeskContext& desk, QWidget* parent);

    /** Opens the list, for the keyboard; says why when there is none. */
    void open();

private:
    void refresh();

    DeskContext m_desk;
    QComboBox* m_choice;
};

/**
 * For a tree or a list: whether a row's object, as `idAt` tells it, is not for the audience. Null when no
 * audience is chosen. Rows that stand for no object are for everyone.
 */
[[nodiscard]] std::function<bool(const QModelIndex& source)> withheldFrom(
    const ProjectSession& session, const QString& audience,
    std::function<core::ContentId(const QModelIndex& source)> idAt);

/** What stands where an audience sees nothing of what there is. */
[[nodiscard]] QString nothingForAudience();

} // namespace tw::desktop::shell
