#include "desktop/settings/AppearancePage.h"

#include "desktop/fields/NoteLabel.h"
#include "desktop/theme/Fonts.h"
#include "desktop/theme/ThemeManager.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QLocale>
#include <QSettings>
#include <QSpinBox>

#include <cmath>

namespace tw::desktop::settings {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView languageKey = "appearance/language"_L1;
constexpr int wholePercent = 100;
constexpr int percentStep = 5;

int percentOf(qreal scale)
{
    return static_cast<int>(std::lround(scale * wholePercent));
}

} // namespace

QList<LanguageChoice> languageChoices()
{
    const QString prefix = u"vellory_"_s;
    QList<LanguageChoice> choices{{QString(), AppearancePage::tr("The system's language")}};
    for (const QString& file : QDir(u":/i18n"_s).entryList({prefix + u"*.qm"_s}, QDir::Files, QDir::Name)) {
        const QString name = file.sliced(prefix.size()).chopped(3);
        QString title = QLocale(name).nativeLanguageName();
        if (!title.isEmpty())
            title[0] = title.at(0).toUpper();
        choices.append({name, title});
    }
    return choices;
}

AppearancePage::AppearancePage(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
{
    auto* const form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    addTheme(*form);
    addLanguage(*form);
    addTextSize(*form);
    addMotion(*form);
}

void AppearancePage::addTheme(QFormLayout& form)
{
    auto* const themes = new QComboBox(this);
    themes->setObjectName(u"theme"_s);
    for (const theme::Theme& theme : theme::builtInThemes())
        themes->addItem(theme.title(), QString(theme.name));
    themes->addItem(tr("Follow the system"), QString(theme::ThemeManager::systemChoice));
    themes->setCurrentIndex(themes->findData(m_desk.themes.choice(), Qt::UserRole, Qt::MatchFixedString));
    connect(themes, &QComboBox::activated, this, [this, themes] {
        m_desk.themes.setChoice(themes->currentData().toString());
    });
    form.addRow(tr("&Theme"), themes);
}

void AppearancePage::addLanguage(QFormLayout& form)
{
    auto* const languages = new QComboBox(this);
    languages->setObjectName(u"language"_s);
    for (const LanguageChoice& choice : languageChoices())
        languages->addItem(choice.title, choice.name);
    const QString present = m_desk.settings.value(languageKey).toString();
    if (languages->findData(present) < 0)
        languages->addItem(present, present);
    languages->setCurrentIndex(languages->findData(present));
    auto* const note = new fields::NoteLabel(m_desk.themes, this);
    connect(languages, &QComboBox::activated, this, [this, languages, note, present] {
        const QString chosen = languages->currentData().toString();
        m_desk.settings.setValue(languageKey, chosen);
        note->setNote(chosen == present ? QString() : tr("Vellory uses it from the next start on."));
    });
    form.addRow(tr("&Language"), languages);
    form.addRow(QString(), note);
}

void AppearancePage::addTextSize(QFormLayout& form)
{
    auto* const size = new QSpinBox(this);
    size->setObjectName(u"textSize"_s);
    size->setRange(percentOf(theme::smallestFontScale), percentOf(theme::largestFontScale));
    size->setSingleStep(percentStep);
    size->setSuffix(tr(" %"));
    size->setValue(percentOf(m_desk.themes.fontScale()));
    // Each digit would set the whole window anew while a number is typed.
    size->setKeyboardTracking(false);
    connect(size, &QSpinBox::valueChanged, this, [this](int percent) {
        m_desk.themes.setFontScale(qreal(percent) / wholePercent);
    });
    form.addRow(tr("Text &size"), size);
}

void AppearancePage::addMotion(QFormLayout& form)
{
    auto* const motion = new QCheckBox(tr("&Reduce motion: the text cursor does not blink"), this);
    motion->setObjectName(u"reduceMotion"_s);
    motion->setChecked(m_desk.themes.isMotionReduced());
    connect(motion, &QCheckBox::toggled, &m_desk.themes, &theme::ThemeManager::setMotionReduced);
    form.addRow(QString(), motion);
}

} // namespace tw::desktop::settings
