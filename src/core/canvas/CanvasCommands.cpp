#include "core/canvas/CanvasCommands.h"

#include <QCoreApplication>

#include <algorithm>

namespace tw::core::canvas {

QString SetCanvasTitleCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Rename canvas");
}

EditCanvasCommand::EditCanvasCommand(Canvas& canvas)
    : m_canvas(canvas)
{}

void EditCanvasCommand::redo()
{
    m_oldCards = m_canvas.cards();
    m_oldConnections = m_canvas.connections();
    std::vector<CanvasCard> cards = m_oldCards;
    std::vector<CanvasConnection> connections = m_oldConnections;
    change(cards, connections);
    m_canvas.setCards(std::move(cards));
    m_canvas.setConnections(std::move(connections));
    m_canvas.touch();
}

void EditCanvasCommand::undo()
{
    m_canvas.setCards(std::move(m_oldCards));
    m_canvas.setConnections(std::move(m_oldConnections));
    m_canvas.touch();
}

SetCanvasCardCommand::SetCanvasCardCommand(Canvas& canvas, CanvasCard card)
    : EditCanvasCommand(canvas)
    , m_card(card)
{}

void SetCanvasCardCommand::change(std::vector<CanvasCard>& cards, std::vector<CanvasConnection>&) const
{
    const auto known = std::ranges::find(cards, m_card.objectId, &CanvasCard::objectId);
    if (known == cards.end())
        cards.push_back(m_card);
    else
        *known = m_card;
}

QString SetCanvasCardCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Move card");
}

RemoveCanvasCardCommand::RemoveCanvasCardCommand(Canvas& canvas, ContentId objectId)
    : EditCanvasCommand(canvas)
    , m_objectId(objectId)
{}

void RemoveCanvasCardCommand::change(
    std::vector<CanvasCard>& cards, std::vector<CanvasConnection>& connections) const
{
    std::erase_if(cards, [this](const CanvasCard& card) { return card.objectId == m_objectId; });
    std::erase_if(connections, [this](const CanvasConnection& connection) {
        return connection.fromId == m_objectId || connection.toId == m_objectId;
    });
}

QString RemoveCanvasCardCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Remove card");
}

AddCanvasConnectionCommand::AddCanvasConnectionCommand(Canvas& canvas, CanvasConnection connection)
    : EditCanvasCommand(canvas)
    , m_connection(std::move(connection))
{}

void AddCanvasConnectionCommand::change(
    std::vector<CanvasCard>&, std::vector<CanvasConnection>& connections) const
{
    connections.push_back(m_connection);
}

QString AddCanvasConnectionCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Connect cards");
}

RemoveCanvasConnectionCommand::RemoveCanvasConnectionCommand(Canvas& canvas, CanvasConnection connection)
    : EditCanvasCommand(canvas)
    , m_connection(std::move(connection))
{}

void RemoveCanvasConnectionCommand::change(
    std::vector<CanvasCard>&, std::vector<CanvasConnection>& connections) const
{
    if (const auto known = std::ranges::find(connections, m_connection); known != connections.end())
        connections.erase(known);
}

QString RemoveCanvasConnectionCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Disconnect cards");
}

} // namespace tw::core::canvas
