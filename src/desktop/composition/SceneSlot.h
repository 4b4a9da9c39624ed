#pragma once

#include "desktop/manuscript/DocumentEditor.h"
#include "desktop/manuscript/PageStyle.h"
#include "desktop/shell/DeskContext.h"

#include "core/foundation/Id.h"

#include <QWidget>

class QLabel;
class QVBoxLayout;

namespace tw::desktop::composition {

/**
 * One document in a continuous text: its title, and its text in an editor that is made when it is about to be
 * seen. Until then the slot is about as high as the text will be.
 */
class SceneSlot final : public QWidget
{
    Q_OBJECT

public:
    SceneSlot(const shell::DeskContext& desk, const core::ContentId& documentId, QWidget* parent);
    ~SceneSlot() override;

    [[nodiscard]] const core::ContentId& documentId() const { return m_documentId; }
    /** Null until it was needed. */
    [[nodiscard]] manuscript::BodyEditor* editor() const { return m_editor.widget; }
    /** Makes the editor when it is not there. */
    manuscript::BodyEditor& wake();
    /** What carries typing from the editor to the document; null as the editor. */
    [[nodiscard]] manuscript::TypingBursts* bursts() const { return m_editor.bursts; }

    /** Title and height follow the project. */
    void refresh();
    void applyStyle();

signals:
    void editorMade(tw::desktop::manuscript::BodyEditor* editor);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] manuscript::PageStyle style() const;
    [[nodiscard]] int likelyHeight() const;
    void layOutTitle();

    shell::DeskContext m_desk;
    core::ContentId m_documentId;
    QVBoxLayout* m_layout;
    QLabel* m_title;
    manuscript::DocumentEditor m_editor;
};

} // namespace tw::desktop::composition
