#pragma once

#include "core/project/ProjectChanges.h"
#include "desktop/manuscript/DocumentEditor.h"
#include "desktop/manuscript/ReadingPlaces.h"
#include "desktop/manuscript/TextPage.h"
#include "desktop/shell/DeskContext.h"

#include <QTimer>

class QLabel;
class QVBoxLayout;

namespace tw::desktop::manuscript {

class FindBar;
class NotesPane;

/** The page of one document in the work area: its text, and what belongs around it. */
class DocumentPage final : public TextPage
{
    Q_OBJECT

public:
    DocumentPage(const shell::DeskContext& desk, const core::ContentId& id, QWidget* parent);
    ~DocumentPage() override;

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QIcon icon() const override;
    void takeFocus() override;
    [[nodiscard]] QList<QWidget*> parts() override;
    [[nodiscard]] QString statusText() const override;

    [[nodiscard]] BodyEditor& editor() { return *m_editor.widget; }
    [[nodiscard]] BodyEditor* currentEditor() const override { return m_editor.widget; }
    [[nodiscard]] rich::RichPage* richPage() const override { return m_editor.rich; }
    [[nodiscard]] core::ContentId editedDocument() const override { return objectId(); }

    [[nodiscard]] TextView textView() const;
    /** Shows the source or not, the cursor in the same paragraph as far as that can be told. */
    void setSourceShown(bool isShown);

    /** Goes to the text of a note, in the pane below or in the text itself. */
    void showNote(const QString& label) override;

    [[nodiscard]] FindBar* findBar() override { return m_findBar; }

    void showPassage(const shell::TextPassage& passage) override;

    /** Nothing but the text, and of that the present paragraph before all. */
    void setFocusMode(bool isOn);

    void applyStyle() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void rememberPlace();
    void restorePlace();
    void makeEditor(TextView view);
    void replaceEditor(TextView view);
    void stepZoom(int step);
    void followChanges(const core::project::ProjectChanges& changes);
    void showLock();
    void showNotes();
    void recount();
    void recountSelection();

    shell::DeskContext m_desk;
    ReadingPlaces m_places;
    QVBoxLayout* m_layout;
    QLabel* m_lockNotice;
    DocumentEditor m_editor;
    NotesPane* m_notes;
    FindBar* m_findBar;
    QTimer m_selectionRest;
    bool m_isFocusMode = false;
    bool m_isPlaceRestored = false;
    qint64 m_words = 0;
    /** Of a screenplay. */
    int m_pages = 0;
    qint64 m_selectedWords = 0;
};

} // namespace tw::desktop::manuscript
