#pragma once

#include "desktop/shell/WorkPage.h"

namespace tw::desktop::manuscript {

class BodyEditor;
class FindBar;

namespace rich {
class RichPage;
}

/** A page of the work area on which texts are written, in one editor or in several. */
class TextPage : public shell::WorkPage
{
    Q_OBJECT

public:
    using WorkPage::WorkPage;

    /** The editor that is written in, or was last; null while there is none. */
    [[nodiscard]] virtual BodyEditor* currentEditor() const = 0;
    /** The same, when it shows styled text; else null. */
    [[nodiscard]] virtual rich::RichPage* richPage() const = 0;
    /** The document whose text that is; null for none. */
    [[nodiscard]] virtual core::ContentId editedDocument() const = 0;
    /** Finds in the texts of the page; null when there is none to find in. */
    [[nodiscard]] virtual FindBar* findBar() = 0;
    /** Goes to where the text of a note of that document is written. */
    virtual void showNote(const QString& label) = 0;
    /** Takes up how the settings want pages set. */
    virtual void applyStyle() = 0;

signals:
    /** Another editor is the current one. */
    void editorChanged();
};

/** The object that is worked on: the document that is written in, or what the page shows; null without a
 * page. */
[[nodiscard]] inline core::ContentId objectWorkedOn(const shell::WorkPage* page)
{
    const auto* const text = qobject_cast<const TextPage*>(page);
    if (const core::ContentId edited = text ? text->editedDocument() : core::ContentId(); !edited.isNull())
        return edited;
    return page ? page->objectId() : core::ContentId();
}

} // namespace tw::desktop::manuscript
