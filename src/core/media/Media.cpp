#include "core/media/Media.h"

namespace tw::core::media {

Media::Media(ContentId id, QString mediaKind, QString assetPath)
    : ContentObject(id, staticKind)
    , m_mediaKind(std::move(mediaKind))
    , m_assetPath(std::move(assetPath))
{}

Media::~Media() = default;

bool operator==(const Media& left, const Media& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_mediaKind == right.m_mediaKind && left.m_caption == right.m_caption &&
           left.m_assetPath == right.m_assetPath && left.m_annotations == right.m_annotations &&
           left.m_crop == right.m_crop;
}

} // namespace tw::core::media
