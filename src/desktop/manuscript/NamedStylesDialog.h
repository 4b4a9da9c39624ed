#pragma once

#include "desktop/manuscript/NamedStyles.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QFontComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace tw::desktop::manuscript {

/**
 * Sets how paragraphs of named styles look. Works on a copy: whoever opened it stores styles() when it was
 * accepted.
 */
class NamedStylesDialog final : public QDialog
{
    Q_OBJECT

public:
    /** `names` are styles that stand in the text without a look so far; `current` is chosen first. */
    NamedStylesDialog(NamedStyles styles, const QStringList& names, const QString& current, QWidget* parent);

    [[nodiscard]] const NamedStyles& styles() const { return m_styles; }

private:
    void fillList(const QString& current);
    void showStyle();
    void takeStyle();
    void addStyle();
    void removeStyle();
    void showSample();
    [[nodiscard]] QString currentName() const;

    NamedStyles m_styles;
    QListWidget* m_list;
    QPushButton* m_remove;
    QWidget* m_form;
    QCheckBox* m_hasFont;
    QFontComboBox* m_font;
    QSpinBox* m_size;
    QCheckBox* m_bold;
    QCheckBox* m_italic;
    QComboBox* m_align;
    QSpinBox* m_left;
    QSpinBox* m_right;
    QCheckBox* m_close;
    QLabel* m_sample;
    bool m_isShowing = false;
};

} // namespace tw::desktop::manuscript
