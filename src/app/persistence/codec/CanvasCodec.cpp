#include "app/persistence/codec/KindCodec.h"

#include "core/canvas/Canvas.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::canvas::Canvas;
using core::canvas::CanvasCard;
using core::canvas::CanvasConnection;

template <>
struct RecordOf<CanvasCard>
{
    static constexpr auto entries = std::tuple(
        always<Data<&CanvasCard::objectId>>("objectId"_L1), always<Data<&CanvasCard::x>>("x"_L1),
        always<Data<&CanvasCard::y>>("y"_L1), always<Data<&CanvasCard::width>>("width"_L1),
        always<Data<&CanvasCard::height>>("height"_L1));
};

template <>
struct RecordOf<CanvasConnection>
{
    static constexpr auto entries = std::tuple(
        always<Data<&CanvasConnection::fromId>>("fromId"_L1),
        always<Data<&CanvasConnection::toId>>("toId"_L1), ifSet<Data<&CanvasConnection::label>>("label"_L1));
};

template <>
struct RecordOf<Canvas>
{
    static constexpr auto entries = std::tuple(
        always<Property<&Canvas::title, &Canvas::setTitle>>("title"_L1),
        ifSet<Property<&Canvas::cards, &Canvas::setCards>>("cards"_L1),
        ifSet<Property<&Canvas::connections, &Canvas::setConnections>>("connections"_L1));
};

KindCodec canvasCodec()
{
    return objectKindCodec<Canvas, [](const core::ContentId& id) {
        return std::make_unique<Canvas>(id, QString());
    }>();
}

} // namespace tw::app::persistence
