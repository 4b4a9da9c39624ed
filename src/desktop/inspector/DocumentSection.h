#pragma once

#include "core/foundation/Id.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

#include <memory>
#include <vector>

class QComboBox;
class QLineEdit;
class QSpinBox;

namespace tw::core::document {
class Document;
}
namespace tw::core::undo {
class Command;
}
namespace tw::desktop::fields {
class GrowingTextEdit;
class StoryDateEdit;
} // namespace tw::desktop::fields

namespace tw::desktop::shell {
class PendingEdit;
}

namespace tw::desktop::inspector {

/** The planning data of a document: each field one command, committed when it is left. */
class DocumentSection final : public QWidget
{
    Q_OBJECT

public:
    DocumentSection(const shell::DeskContext& desk, QWidget* parent);

    /** Null shows nothing. What was typed for the document before is committed first. */
    void showDocument(const core::ContentId& id);

private:
    void connectFields();
    void connectSynopsis();
    /** What is typed into the fields is stored before anything else happens. */
    void holdTyping();
    void showSynopsis(const QString& text);
    void commitSynopsis();
    void fillSuggestions();
    /** Builds a command for the shown document and applies it. */
    /** One step, unless the document is locked or says this already. */
    template <class Command, auto Getter, class Value>
    void apply(Value value);
    [[nodiscard]] const core::document::Document* document() const;

    shell::DeskContext m_desk;
    core::ContentId m_id;
    fields::GrowingTextEdit* m_synopsis;
    /** As the project has it. */
    QString m_shownSynopsis;
    shell::PendingEdit* m_heldSynopsis = nullptr;
    QComboBox* m_kind;
    QComboBox* m_status;
    QComboBox* m_pointOfView;
    QSpinBox* m_tension;
    fields::StoryDateEdit* m_sceneDate;
    QSpinBox* m_target;
    std::vector<shell::PendingEdit*> m_held;
};

} // namespace tw::desktop::inspector
