#include "app/persistence/codec/KindCodec.h"

#include "core/media/Media.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::media::Media;
using core::media::MediaAnnotation;
using core::media::MediaCrop;

template <>
struct RecordOf<MediaAnnotation>
{
    static constexpr auto entries = std::tuple(
        always<Data<&MediaAnnotation::type>>("type"_L1), ifSet<Data<&MediaAnnotation::color>>("color"_L1),
        always<Data<&MediaAnnotation::text>>("text"_L1));
};

template <>
struct RecordOf<MediaCrop>
{
    static constexpr auto entries = std::tuple(
        always<Data<&MediaCrop::x>>("x"_L1), always<Data<&MediaCrop::y>>("y"_L1),
        always<Data<&MediaCrop::width>>("width"_L1), always<Data<&MediaCrop::height>>("height"_L1));
};

template <>
struct RecordOf<Media>
{
    static constexpr auto entries = std::tuple(
        always<Property<&Media::mediaKind, &Media::setMediaKind>>("kind"_L1),
        ifSet<Property<&Media::caption, &Media::setCaption>>("caption"_L1),
        always<Property<&Media::assetPath, &Media::setAssetPath>>("assetPath"_L1),
        ifSet<Property<&Media::annotations, &Media::setAnnotations>>("annotations"_L1),
        ifSet<Property<&Media::crop, &Media::setCrop>>("crop"_L1));
};

KindCodec mediaCodec()
{
    return objectKindCodec<Media, [](const core::ContentId& id) {
        return std::make_unique<Media>(id, QString(), QString());
    }>();
}

} // namespace tw::app::persistence
