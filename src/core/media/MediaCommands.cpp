#include "core/media/MediaCommands.h"

#include <QCoreApplication>

namespace tw::core::media {

QString SetMediaCaptionCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit caption");
}

QString SetMediaCropCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Crop image");
}

EditAnnotationsCommand::EditAnnotationsCommand(Media& media)
    : m_media(media)
{}

void EditAnnotationsCommand::redo()
{
    m_oldAnnotations = m_media.annotations();
    std::vector<MediaAnnotation> annotations = m_oldAnnotations;
    change(annotations);
    m_media.setAnnotations(std::move(annotations));
    m_media.touch();
}

void EditAnnotationsCommand::undo()
{
    m_media.setAnnotations(std::move(m_oldAnnotations));
    m_media.touch();
}

AddMediaAnnotationCommand::AddMediaAnnotationCommand(Media& media, MediaAnnotation annotation)
    : EditAnnotationsCommand(media)
    , m_annotation(std::move(annotation))
{}

void AddMediaAnnotationCommand::change(std::vector<MediaAnnotation>& annotations) const
{
    annotations.push_back(m_annotation);
}

QString AddMediaAnnotationCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Add annotation");
}

RemoveMediaAnnotationCommand::RemoveMediaAnnotationCommand(Media& media, std::size_t index)
    : EditAnnotationsCommand(media)
    , m_index(index)
{}

void RemoveMediaAnnotationCommand::change(std::vector<MediaAnnotation>& annotations) const
{
    if (m_index < annotations.size())
        annotations.erase(annotations.begin() + static_cast<std::ptrdiff_t>(m_index));
}

QString RemoveMediaAnnotationCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Remove annotation");
}

} // namespace tw::core::media
