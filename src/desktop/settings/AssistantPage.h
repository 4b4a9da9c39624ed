#pragma once

#include "desktop/shell/DeskContext.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;

namespace tw::desktop::settings {

/** How to connect an assistant of the user's choice to the open project: text to be copied into its settings.
 */
class AssistantPage final : public QWidget
{
    Q_OBJECT

public:
    AssistantPage(const shell::DeskContext& desk, QWidget* parent);

    /** What is shown to be copied. */
    [[nodiscard]] QString snippet() const;

private:
    void showSnippet();

    shell::DeskContext m_desk;
    QComboBox* m_form;
    QCheckBox* m_readOnly;
    QPlainTextEdit* m_snippet;
    QLabel* m_note;
};

} // namespace tw::desktop::settings
