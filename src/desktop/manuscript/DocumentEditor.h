#pragma once

#include "core/foundation/Id.h"

class QSettings;
class QWidget;

namespace tw::desktop::shell {
struct DeskContext;
class ProjectSession;
} // namespace tw::desktop::shell

namespace tw::desktop::screenplay {
class ScreenplayPage;
}

namespace tw::desktop::manuscript {

class BodyEditor;
class TypingBursts;

namespace rich {
class RichPage;
}

/** How the text of a document is shown. */
enum class TextView
{
    Rich,
    MarkdownSource,
    /** Screenplays are shown so unless their source is. */
    Screenplay,
};

/** How the document is shown unless its source is. */
[[nodiscard]] TextView styledViewOf(const shell::ProjectSession& session, const core::ContentId& documentId);

/** The editor of one document, by itself or among others. All is owned by the widget; null without it. */
struct DocumentEditor
{
    BodyEditor* widget = nullptr;
    /** The widget, when it shows styled text. */
    rich::RichPage* rich = nullptr;
    /** The widget, when it shows a screenplay. */
    screenplay::ScreenplayPage* screenplay = nullptr;
    /** What carries typing from the widget to the document. */
    TypingBursts* bursts = nullptr;
};

/**
 * Makes the widget, with everything that a writer may do in it: names and links can be followed, pasted
 * images become assets, revisions are marked. Where the text of a footnote is to be shown is the caller's
 * matter. What the desk refers to must outlive the widget.
 */
[[nodiscard]] DocumentEditor makeDocumentEditor(
    const shell::DeskContext& desk, const core::ContentId& documentId, TextView view, QWidget* parent);

/** Takes up how the settings want texts set and corrected. */
void applyEditorSettings(const DocumentEditor& editor, const QSettings& settings);

/** Whether the line that is written in keeps its height in the window. */
[[nodiscard]] bool isTypewriterScrolling(const QSettings& settings);

} // namespace tw::desktop::manuscript
