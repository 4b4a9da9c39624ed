#pragma once

#include "core/media/Media.h"
#include "core/undo/SetFieldCommand.h"

namespace tw::core::media {

class SetMediaCaptionCommand final : public undo::SetFieldCommand<&Media::caption, &Media::setCaption>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

class SetMediaCropCommand final : public undo::SetFieldCommand<&Media::crop, &Media::setCrop>
{
public:
    using SetFieldCommand::SetFieldCommand;
    [[nodiscard]] QString text() const override;
};

/** Common to the edits of the annotation list: keeps the list as it was and puts it back. */
class EditAnnotationsCommand : public undo::Command
{
public:
    void redo() final;
    void undo() final;

protected:
    explicit EditAnnotationsCommand(Media& media);

    virtual void change(std::vector<MediaAnnotation>& annotations) const = 0;

private:
    Media& m_media;
    std::vector<MediaAnnotation> m_oldAnnotations;
};

class AddMediaAnnotationCommand final : public EditAnnotationsCommand
{
public:
    AddMediaAnnotationCommand(Media& media, MediaAnnotation annotation);
    [[nodiscard]] QString text() const override;

private:
    void change(std::vector<MediaAnnotation>& annotations) const override;

    MediaAnnotation m_annotation;
};

/** Removes the annotation at a position; nothing when there is none. */
class RemoveMediaAnnotationCommand final : public EditAnnotationsCommand
{
public:
    RemoveMediaAnnotationCommand(Media& media, std::size_t index);
    [[nodiscard]] QString text() const override;

private:
    void change(std::vector<MediaAnnotation>& annotations) const override;

    std::size_t m_index;
};

} // namespace tw::core::media
