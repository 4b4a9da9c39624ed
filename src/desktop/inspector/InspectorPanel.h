#pragma once

#include "core/project/ProjectChanges.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

class QLabel;
class QScrollArea;

namespace tw::desktop::inspector {

class DocumentSection;
class ObjectSection;

/** The properties of what is selected: those of documents, and those that every object has. */
class InspectorPanel final : public QWidget
{
    Q_OBJECT

public:
    InspectorPanel(const shell::DeskContext& desk, QWidget* parent);
    ~InspectorPanel() override;

private:
    void showCurrent();
    void followChanges(const core::project::ProjectChanges& changes);

    shell::DeskContext m_desk;
    QLabel* m_hint;
    QScrollArea* m_scroll;
    QLabel* m_icon;
    QLabel* m_title;
    DocumentSection* m_document;
    ObjectSection* m_object;
};

} // namespace tw::desktop::inspector
