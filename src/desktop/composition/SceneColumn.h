#pragma once

#include "core/document/DocumentPlaces.h"
#include "core/project/ProjectChanges.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

#include <map>
#include <set>
#include <vector>

class QLabel;
class QVBoxLayout;

namespace tw::desktop::composition {

class SceneSlot;

/**
 * The documents below one (null: the whole manuscript) beneath each other in reading order, without notes and
 * without what is not for the chosen audience. Follows the project; what a change does not concern costs
 * nothing.
 */
class SceneColumn final : public QWidget
{
    Q_OBJECT

public:
    SceneColumn(const shell::DeskContext& desk, const core::ContentId& rootId, QWidget* parent);
    ~SceneColumn() override;

    /** Shows the documents; once, where slotMade() is heard and the column stands in its place. */
    void fill() { rebuild(); }

    [[nodiscard]] const std::vector<SceneSlot*>& slotsInOrder() const { return m_slots; }
    /** Of all documents shown. */
    [[nodiscard]] qint64 wordCount() const { return m_words; }
    /** Gives every slot its place now, after one became another height. */
    void settle();

signals:
    /** A document came to be shown. */
    void slotMade(tw::desktop::composition::SceneSlot* slot);
    /** What is shown, or the words of it, may be different. */
    void changed();

private:
    /** A slot, and what it adds to the words. */
    struct Scene
    {
        SceneSlot* slot;
        qint64 words = 0;
    };

    [[nodiscard]] std::vector<core::ContentId> documentsInOrder() const;
    [[nodiscard]] bool isWithheld(const core::ContentId& id) const;
    /** Whether the audience may now see one that was left out, or one no longer that stands here. */
    [[nodiscard]] bool isAudienceConcerned(const core::project::ProjectChanges& changes) const;
    void rebuild();
    [[nodiscard]] SceneSlot* makeSlot(const core::ContentId& id);
    void countWords(Scene& scene);
    void followChanges(const core::project::ProjectChanges& changes);

    shell::DeskContext m_desk;
    core::ContentId m_rootId;
    core::document::DocumentPlaces m_documentPlaces;
    QVBoxLayout* m_layout;
    QLabel* m_hint;
    std::vector<SceneSlot*> m_slots;
    std::map<core::ContentId, Scene> m_scenes;
    qint64 m_words = 0;
    /** Those that are not for the audience. */
    std::set<core::ContentId> m_withheld;
};

} // namespace tw::desktop::composition
