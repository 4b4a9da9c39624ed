#pragma once

#include "desktop/manuscript/PageStyle.h"
#include "desktop/shell/DeskContext.h"

#include <QWidget>

class QDoubleSpinBox;
class QFontComboBox;
class QSpinBox;

namespace tw::desktop::settings {

/** How the pages of documents are set. */
class EditorPage final : public QWidget
{
    Q_OBJECT

public:
    EditorPage(const shell::DeskContext& desk, QWidget* parent);

signals:
    /** The settings say something else now; open pages do not follow by themselves. */
    void pageStyleChanged();

private:
    void show(const manuscript::PageStyle& style);
    void store();

    shell::DeskContext m_desk;
    QFontComboBox* m_font;
    QDoubleSpinBox* m_size;
    QSpinBox* m_width;
    QDoubleSpinBox* m_lineHeight;
};

} // namespace tw::desktop::settings
