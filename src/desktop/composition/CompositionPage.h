#pragma once

#include "desktop/manuscript/FindBar.h"
#include "desktop/manuscript/ReadingPlaces.h"
#include "desktop/manuscript/TextPage.h"
#include "desktop/shell/DeskContext.h"

#include <QPointer>

#include <vector>

class QScrollArea;

namespace tw::desktop::composition {

class SceneColumn;
class SceneSlot;

/** The view, as page addresses name it. */
inline constexpr QLatin1StringView compositionView("composition");

/**
 * All documents below one (null: the whole manuscript) as one continuous text. Each stays a document of its
 * own, edited in place; the arrow keys lead from one into the next. Editors are made for what is about to be
 * seen, so that a whole manuscript opens at once.
 */
class CompositionPage final : public manuscript::TextPage, private manuscript::TextSequence
{
    Q_OBJECT

public:
    CompositionPage(const shell::DeskContext& desk, const core::ContentId& rootId, QWidget* parent);
    ~CompositionPage() override;

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] std::vector<core::ContentId> shownObjects() const override;
    void takeFocus() override;
    [[nodiscard]] QList<QWidget*> parts() override;
    [[nodiscard]] QString statusText() const override;

    [[nodiscard]] manuscript::BodyEditor* currentEditor() const override;
    [[nodiscard]] manuscript::rich::RichPage* richPage() const override;
    [[nodiscard]] core::ContentId editedDocument() const override;
    [[nodiscard]] manuscript::FindBar* findBar() override;
    /** Notes are written where the document is by itself. */
    void showNote(const QString& label) override;
    void applyStyle() override;

    [[nodiscard]] const std::vector<SceneSlot*>& slotsInOrder() const;

signals:
    /** A document is about to be seen. */
    void editorMade(tw::desktop::manuscript::BodyEditor* editor, const tw::core::ContentId& documentId);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    bool goOn(const manuscript::TextFinder& finder, bool isForward) override;
    void visitAll(const manuscript::TextFinder& finder, const std::function<void()>& work) override;
    [[nodiscard]] bool hasMatch(const SceneSlot& slot, const manuscript::TextFinder& finder) const;
    void follow(SceneSlot* slot);
    void prepare(SceneSlot& slot, manuscript::BodyEditor& editor);
    void wakeVisible();
    void showCursor(const manuscript::BodyEditor& editor);
    void setCurrentSlot(SceneSlot* slot);
    bool leaveEditor(SceneSlot& slot, int key);
    void enter(std::size_t index, bool atEnd);
    void rememberPlace();
    /** To where the writer was last in any of the documents; false when that is not known. */
    bool enterLatestPlace();

    shell::DeskContext m_desk;
    manuscript::ReadingPlaces m_places;
    QScrollArea* m_area;
    manuscript::FindBar* m_findBar;
    SceneColumn* m_scenes;
    QPointer<SceneSlot> m_current;
    bool m_isWaking = false;
};

} // namespace tw::desktop::composition
