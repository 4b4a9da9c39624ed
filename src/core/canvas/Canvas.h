#pragma once

#include "core/content/ContentObject.h"

#include <optional>
#include <vector>

namespace tw::core::canvas {

/** A card that shows one object of the project. Places and sizes in scene units (pixels at 100 %). */
struct CanvasCard
{
    ContentId objectId;
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    friend bool operator==(const CanvasCard&, const CanvasCard&) = default;
};

/** A line between the cards of two objects. */
struct CanvasConnection
{
    ContentId fromId;
    ContentId toId;
    QString label;

    friend bool operator==(const CanvasConnection&, const CanvasConnection&) = default;
};

/** A board of cards and lines; each object has at most one card on it. */
class Canvas final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Canvas;

    Canvas(ContentId id, QString title);
    ~Canvas() override;

    [[nodiscard]] const QString& title() const { return m_title; }
    void setTitle(QString title) { m_title = std::move(title); }

    /** In stacking order, lowest first. */
    [[nodiscard]] const std::vector<CanvasCard>& cards() const { return m_cards; }
    void setCards(std::vector<CanvasCard> cards) { m_cards = std::move(cards); }

    /** The card of an object, or none. */
    [[nodiscard]] std::optional<CanvasCard> cardOf(const ContentId& objectId) const;

    [[nodiscard]] const std::vector<CanvasConnection>& connections() const { return m_connections; }
    void setConnections(std::vector<CanvasConnection> connections) { m_connections = std::move(connections); }

    friend bool operator==(const Canvas& left, const Canvas& right);

private:
    QString m_title;
    std::vector<CanvasCard> m_cards;
    std::vector<CanvasConnection> m_connections;
};

} // namespace tw::core::canvas
