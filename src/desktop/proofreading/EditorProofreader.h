#pragma once

#include "core/foundation/Id.h"
#include "desktop/proofreading/BlockFindings.h"

#include <QObject>
#include <QTimer>

#include <optional>

class QMenu;
class QTextEdit;

namespace tw::desktop::proofreading {

class ProofreadingService;
class UnderlineOverlay;
struct VisibleBlocks;

/**
 * Proofreads what one editor shows while it is written: what is in sight first and the rest when the writer
 * rests, in short slices. Underlines what it finds and offers better words in the editor's context menu. A
 * child of the editor; the service must outlive it.
 */
class EditorProofreader final : public QObject
{
    Q_OBJECT

public:
    EditorProofreader(ProofreadingService& service, QTextEdit& editor, const core::ContentId& document);

    [[nodiscard]] QTextEdit& editor() const { return m_editor; }
    [[nodiscard]] const core::ContentId& documentId() const { return m_documentId; }

    /** Checks what is left at once, without waiting for a rest. */
    void finishNow();
    /** A finding and the paragraph that it stands in. */
    struct Place
    {
        int block = 0;
        ProseFinding finding;
    };
    /** What was found at a position of the document. */
    [[nodiscard]] std::optional<Place> findingAt(int position) const;
    [[nodiscard]] const BlockFindings& findings() const { return m_findings; }

    /** The text that a finding is about. */
    [[nodiscard]] QString textOf(const Place& place) const;
    /** Puts the suggestion in the place of the finding's text, as one step of the history. */
    void replace(const Place& place, const QString& suggestion);
    /** Selects the text of the finding and brings it into sight. */
    void show(const Place& place);
    /** Suggestions for what was found at the cursor, in a menu there; false when nothing was. */
    bool popUpSuggestions();
    /** Adds what can be done about the finding: better words first. */
    void fillMenu(QMenu& menu, const Place& place);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void restart();
    void checkSlice();
    /** Checks the next paragraph, those in sight first; false when none is left. */
    bool checkNext(const VisibleBlocks& inSight);
    void check(int block);
    [[nodiscard]] QTextBlock blockOf(const Place& place) const;

    ProofreadingService& m_service;
    QTextEdit& m_editor;
    core::ContentId m_documentId;
    BlockFindings m_findings;
    UnderlineOverlay* m_overlay;
    QTimer m_rest;
    QTimer m_slice;
};

} // namespace tw::desktop::proofreading
