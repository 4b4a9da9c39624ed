#pragma once

#include "core/canvas/Canvas.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::canvas {

class SetCanvasTitleCommand final : public undo::SetFieldCommand<&Canvas::title, &Canvas::setTitle>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** Common to the edits of cards and lines: keeps both lists as they were and puts them back. */
class EditCanvasCommand : public undo::Command
{
public:
    void redo() final;
    void undo() final;

protected:
    explicit EditCanvasCommand(Canvas& canvas);

    virtual void change(std::vector<CanvasCard>& cards, std::vector<CanvasConnection>& connections) const = 0;

private:
    Canvas& m_canvas;
    std::vector<CanvasCard> m_oldCards;
    std::vector<CanvasConnection> m_oldConnections;
};

/** Places the card of an object: moves the one that is there, or adds it on top. */
class SetCanvasCardCommand final : public EditCanvasCommand
{
public:
    SetCanvasCardCommand(Canvas& canvas, CanvasCard card);
    [[nodiscard]] QString text() const override;

private:
    void change(std::vector<CanvasCard>& cards, std::vector<CanvasConnection>& connections) const override;

    CanvasCard m_card;
};

/** Removes the card of an object together with its lines. */
class RemoveCanvasCardCommand final : public EditCanvasCommand
{
public:
    RemoveCanvasCardCommand(Canvas& canvas, ContentId objectId);
    [[nodiscard]] QString text() const override;

private:
    void change(std::vector<CanvasCard>& cards, std::vector<CanvasConnection>& connections) const override;

    ContentId m_objectId;
};

class AddCanvasConnectionCommand final : public EditCanvasCommand
{
public:
    AddCanvasConnectionCommand(Canvas& canvas, CanvasConnection connection);
    [[nodiscard]] QString text() const override;

private:
    void change(std::vector<CanvasCard>& cards, std::vector<CanvasConnection>& connections) const override;

    CanvasConnection m_connection;
};

/** Removes one line that equals the given one. */
class RemoveCanvasConnectionCommand final : public EditCanvasCommand
{
public:
    RemoveCanvasConnectionCommand(Canvas& canvas, CanvasConnection connection);
    [[nodiscard]] QString text() const override;

private:
    void change(std::vector<CanvasCard>& cards, std::vector<CanvasConnection>& connections) const override;

    CanvasConnection m_connection;
};

} // namespace tw::core::canvas
