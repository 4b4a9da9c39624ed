#pragma once

#include "desktop/codex/EntitySection.h"

#include <QStringList>

#include <vector>

class QPushButton;

namespace tw::desktop::fields {
class FlowLayout;
}

namespace tw::desktop::codex {

class GalleryPicture;

/** Absolute path of an asset when it is a file inside the project folder; empty for anything else. */
[[nodiscard]] QString assetFile(const QString& projectFolder, const QString& assetPath);

/**
 * The pictures of an entity; more come by a dialog or are dropped on it. Hidden when there is nothing to be
 * shown and nothing can be added.
 */
class GallerySection final : public EntitySection
{
    Q_OBJECT

public:
    GallerySection(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent);

    void showEntity(const core::entity::Entity& entity) override;
    void follow(const core::project::ProjectChanges& changes) override;
    void setReadOnly(bool readOnly) override;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void showPictures(const core::entity::Entity& entity);
    void choosePictures();
    void add(const QStringList& files);
    void showMenu(const core::ContentId& picture, const QPoint& globalPosition);

    struct Picture
    {
        core::ContentId id;
        QString file;
        QString caption;

        friend bool operator==(const Picture&, const Picture&) = default;
    };

    fields::FlowLayout* m_layout;
    QPushButton* m_add;
    /** What the pictures were looked up for. */
    std::vector<core::ContentId> m_mediaIds;
    QString m_folder;
    std::vector<Picture> m_pictures;
    std::vector<GalleryPicture*> m_widgets;
};

} // namespace tw::desktop::codex
