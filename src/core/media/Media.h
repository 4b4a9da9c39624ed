#pragma once

#include "core/content/ContentObject.h"

#include <optional>
#include <vector>

namespace tw::core::media {

struct MediaAnnotation
{
    /** What the mark is ("note", "highlight", ...), as its editor names it. */
    QString type;
    QString color;
    QString text;

    friend bool operator==(const MediaAnnotation&, const MediaAnnotation&) = default;
};

/** The part of an image that is shown: fractions of its size, 0..1 from the top left. */
struct MediaCrop
{
    double x = 0;
    double y = 0;
    double width = 1;
    double height = 1;

    friend bool operator==(const MediaCrop&, const MediaCrop&) = default;
};

/** A picture, a recording, a film or a PDF in the project's assets. */
class Media final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Media;

    Media(ContentId id, QString mediaKind, QString assetPath);
    ~Media() override;

    /** "image", "audio", "video", "pdf" or whatever the file says. */
    [[nodiscard]] const QString& mediaKind() const { return m_mediaKind; }
    void setMediaKind(QString kind) { m_mediaKind = std::move(kind); }

    [[nodiscard]] const QString& caption() const { return m_caption; }
    void setCaption(QString caption) { m_caption = std::move(caption); }

    /** Relative to the project, "assets/...". */
    [[nodiscard]] const QString& assetPath() const { return m_assetPath; }
    void setAssetPath(QString path) { m_assetPath = std::move(path); }

    [[nodiscard]] const std::vector<MediaAnnotation>& annotations() const { return m_annotations; }
    void setAnnotations(std::vector<MediaAnnotation> annotations) { m_annotations = std::move(annotations); }

    /** None for the whole image. */
    [[nodiscard]] const std::optional<MediaCrop>& crop() const { return m_crop; }
    void setCrop(std::optional<MediaCrop> crop) { m_crop = crop; }

    friend bool operator==(const Media& left, const Media& right);

private:
    QString m_mediaKind;
    QString m_caption;
    QString m_assetPath;
    std::vector<MediaAnnotation> m_annotations;
    std::optional<MediaCrop> m_crop;
};

} // namespace tw::core::media
