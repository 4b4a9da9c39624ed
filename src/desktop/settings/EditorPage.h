#pragma once

#include "desktop/manuscript/PageStyle.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFontComboBox;
class QFormLayout;
class QSpinBox;

namespace tw::desktop::settings {

/** How the pages of documents are set, and what is corrected while one types. */
class EditorPage final : public QWidget
{
    Q_OBJECT

public:
    EditorPage(const shell::DeskContext& desk, QWidget* parent);

signals:
    /** The settings say something else now; open pages do not follow by themselves. */
    void editorSettingsChanged();

private:
    void show(const manuscript::PageStyle& style);
    void store();
    void addTypingRows(QFormLayout& form);
    void showTyping();
    void storeTyping();

    shell::DeskContext m_desk;
    QFontComboBox* m_font;
    QDoubleSpinBox* m_size;
    QSpinBox* m_width;
    QDoubleSpinBox* m_lineHeight;
    QCheckBox* m_indents;
    QCheckBox* m_wordCount;
    QCheckBox* m_autoCorrect;
    QComboBox* m_quotes;
    QCheckBox* m_dashes;
    QCheckBox* m_ellipsis;
    QCheckBox* m_mentions;
};

} // namespace tw::desktop::settings
