#pragma once

#include "desktop/codex/EntitySection.h"

#include <QImage>

namespace tw::desktop::fields {
class FlowLayout;
}

namespace tw::desktop::codex {

/** Absolute path of an asset when it is a file inside the project folder; empty for anything else. */
[[nodiscard]] QString assetFile(const QString& projectFolder, const QString& assetPath);

/** A picture of a gallery: as large as it is, or as the frame when it is larger. */
class GalleryPicture final : public QWidget
{
    Q_OBJECT

public:
    GalleryPicture(const QString& file, const QString& caption, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void activated();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void load(const QString& file);

    QImage m_image;
    QSize m_shownSize;
};

/** The pictures of an entity. Hidden when none of them is there to be shown. */
class GallerySection final : public EntitySection
{
    Q_OBJECT

public:
    GallerySection(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent);

    void showEntity(const core::entity::Entity& entity) override;
    void follow(const core::project::ProjectChanges& changes) override;

private:
    void showPictures(const core::entity::Entity& entity);

    struct Picture
    {
        core::ContentId id;
        QString file;
        QString caption;

        friend bool operator==(const Picture&, const Picture&) = default;
    };

    fields::FlowLayout* m_layout;
    /** What the pictures were looked up for. */
    std::vector<core::ContentId> m_mediaIds;
    QString m_folder;
    std::vector<Picture> m_pictures;
    std::vector<GalleryPicture*> m_widgets;
};

} // namespace tw::desktop::codex
