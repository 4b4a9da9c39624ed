#pragma once

#include "desktop/shell/DeskContext.h"

#include <QWidget>

class QFormLayout;

namespace tw::desktop::settings {

struct LanguageChoice
{
    /** Of the locale; empty for that of the system. */
    QString name;
    QString title;
};

/** The system's language, English, and those that there is a catalogue for, each by its own name. */
[[nodiscard]] QList<LanguageChoice> languageChoices();

/** How the interface looks: theme, language, size of its texts, motion. */
class AppearancePage final : public QWidget
{
    Q_OBJECT

public:
    AppearancePage(const shell::DeskContext& desk, QWidget* parent);

private:
    void addTheme(QFormLayout& form);
    void addLanguage(QFormLayout& form);
    void addTextSize(QFormLayout& form);
    void addMotion(QFormLayout& form);

    shell::DeskContext m_desk;
};

} // namespace tw::desktop::settings
