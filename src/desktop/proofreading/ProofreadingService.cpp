#include "desktop/proofreading/ProofreadingService.h"

#include "app/style/spelling/CodexWords.h"
#include "app/style/spelling/HunspellSpellChecker.h"
#include "core/entity/Entity.h"
#include "desktop/manuscript/TypingBursts.h"
#include "desktop/proofreading/EditorProofreader.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"

#include <QLocale>
#include <QSettings>
#include <QStandardPaths>
#include <QTextEdit>

#include <algorithm>
#include <array>
#include <chrono>

namespace tw::desktop::proofreading {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using namespace app::style::spelling;

namespace {

/** Names are collected anew when the codex has been left alone for so long. */
constexpr auto namesRest = 500ms;

/** The dictionary for who has chosen none; empty when none fits. */
QString systemLanguage(const QStringList& installed)
{
    const QString language = nearestLanguage(installed, QLocale::system().name());
    if (!language.isEmpty())
        return language;
    // A system without a language speaks as the program does, which is English where nobody chose another.
    const QLocale interface;
    return nearestLanguage(installed, interface.language() == QLocale::C ? u"en"_s : interface.name());
}

} // namespace

SpellingPlaces usualSpellingPlaces()
{
    return {
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/userdictionary.txt"_s,
        dictionaryFolders()};
}

ProofreadingService::ProofreadingService(
    const shell::DeskContext& desk, const SpellingPlaces& places, QObject* parent)
    : QObject(parent)
    , m_desk(desk)
    , m_settings(proofreadingSettingsFrom(desk.settings))
    , m_installed(installedDictionaries(places.dictionaryFolders))
    , m_userDictionary(places.userDictionary)
    , m_names(std::make_shared<WordSetSpellChecker>())
{
    m_pool.setMaxThreadCount(1);
    m_systemLanguage = systemLanguage(languages());
    m_namesRest.setSingleShot(true);
    m_namesRest.setInterval(namesRest);
    connect(&m_namesRest, &QTimer::timeout, this, &ProofreadingService::refreshNames);
    connect(&desk.session, &shell::ProjectSession::changed, this, &ProofreadingService::followChanges);
    connect(&desk.session, &shell::ProjectSession::saved, this, [this] {
        forgetProofreadingInSettings(m_desk.settings, std::exchange(m_adopted, {}));
    });
    say(m_userDictionary.load());
    refreshNames();
    m_known = desk.session.project().proofreading();
    adoptFromSettings();
}

ProofreadingService::~ProofreadingService()
{
    m_pool.waitForDone();
}

void ProofreadingService::attach(QTextEdit& editor, const core::ContentId& document)
{
    auto* const proofreader = new EditorProofreader(*this, editor, document);
    m_editors.push_back(proofreader);
    connect(
        proofreader, &QObject::destroyed, this, [this, proofreader] { std::erase(m_editors, proofreader); });
}

EditorProofreader* ProofreadingService::proofreaderOf(const core::ContentId& document) const
{
    EditorProofreader* found = nullptr;
    for (EditorProofreader* const each : m_editors) {
        if (each->documentId() != document)
            continue;
        if (!found || each->editor().hasFocus() ||
            (each->editor().isVisible() && !found->editor().hasFocus()))
            found = each;
    }
    return found;
}

void ProofreadingService::popUpSuggestions()
{
    for (EditorProofreader* const each : m_editors) {
        if (each->editor().hasFocus() && each->popUpSuggestions())
            return;
    }
    m_desk.navigator.say(tr("There is nothing to suggest for the text at the cursor."));
}

void ProofreadingService::setSettings(const ProofreadingSettings& settings)
{
    if (settings == m_settings)
        return;
    m_settings = settings;
    storeProofreadingSettings(m_desk.settings, settings);
    dropChecks();
}

QStringList ProofreadingService::languages() const
{
    QStringList languages;
    for (const Dictionary& dictionary : m_installed)
        languages.append(dictionary.language);
    return languages;
}

QStringList ProofreadingService::languagesOf(const core::ContentId& document) const
{
    if (const QStringList own = ownLanguagesOf(document); !own.isEmpty())
        return own;
    if (!m_settings.languages.isEmpty())
        return m_settings.languages;
    return m_systemLanguage.isEmpty() ? QStringList() : QStringList{m_systemLanguage};
}

QStringList ProofreadingService::ownLanguagesOf(const core::ContentId& document) const
{
    return documentProofreading(m_desk.session.project(), document).languages;
}

QLocale ProofreadingService::spokenLanguageOf(const core::ContentId& document) const
{
    const QStringList own = ownLanguagesOf(document);
    const QLocale language = own.isEmpty() ? QLocale() : QLocale(own.constFirst());
    // A word list may have a name that is no language.
    return language.language() == QLocale::C ? QLocale() : language;
}

void ProofreadingService::setLanguagesOf(const core::ContentId& document, const QStringList& languages)
{
    setDocumentLanguages(m_desk.session, document, languages);
}

QString ProofreadingService::dictionaryFailure() const
{
    QStringList failures;
    for (const auto& [language, dictionary] : m_dictionaries) {
        if (!dictionary.failure.isEmpty())
            failures.append(dictionary.failure);
    }
    return failures.join(u'\n');
}

std::shared_ptr<const ProseCheck> ProofreadingService::check(
    const core::ContentId& document, CheckScope scope)
{
    const QStringList languages = languagesOf(document);
    auto& check = m_checks[{languages.join(u' '), scope}];
    if (check)
        return check;
    const bool isAll = scope == CheckScope::Everything;
    QSet<QString> disabled = m_settings.disabledRules;
    if (!isAll && !m_settings.marksStyle) {
        for (const auto* rule : app::style::styleRules())
            disabled.insert(rule->id());
    }
    check = std::make_shared<const ProseCheck>(
        app::style::Proofreader(disabled),
        Speller(isAll || m_settings.marksSpelling ? sourcesFor(languages) : SpellingSources()));
    return check;
}

SpellingSources ProofreadingService::sourcesFor(const QStringList& languages)
{
    SpellingSources sources;
    for (const QString& language : languages) {
        const auto known = m_dictionaries.find(language);
        if (known == m_dictionaries.end())
            read(language);
        else if (known->second.checker)
            sources.languages.push_back(known->second.checker);
    }
    // While one of several is missing, its words would all be wrong.
    if (std::ssize(sources.languages) < languages.size())
        sources.languages.clear();
    sources.ownWords = {m_userDictionary.checker(), m_names};
    sources.skipsAllCapitals = m_settings.skipsAllCapitals;
    return sources;
}

void ProofreadingService::read(const QString& language)
{
    ReadDictionary& entry = m_dictionaries[language];
    const auto dictionary = std::ranges::find(m_installed, language, &Dictionary::language);
    if (dictionary == m_installed.end()) {
        entry.failure =
            tr("The dictionary “%1” is not installed. Install it, or choose another language.").arg(language);
        m_desk.navigator.say(entry.failure);
        return;
    }
    m_pool.start([this, dictionary = *dictionary] {
        const auto opened = HunspellSpellChecker::open(dictionary);
        const ReadDictionary result{opened ? Checker(opened.value()) : Checker(), opened.message()};
        QMetaObject::invokeMethod(
            this, [this, language = dictionary.language, result] { finish(language, result); },
            Qt::QueuedConnection);
    });
}

void ProofreadingService::finish(const QString& language, const ReadDictionary& dictionary)
{
    m_dictionaries[language] = dictionary;
    if (!dictionary.failure.isEmpty())
        m_desk.navigator.say(dictionary.failure);
    dropChecks();
}

void ProofreadingService::finishReading()
{
    m_pool.waitForDone();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

const IgnoredFindings& ProofreadingService::ignored(const core::ContentId& document)
{
    auto known = m_ignored.find(document);
    if (known == m_ignored.end())
        known = m_ignored.insert(
            document, IgnoredFindings(documentProofreading(m_desk.session.project(), document).ignored));
    return known.value();
}

void ProofreadingService::ignore(const core::ContentId& document, ProblemKind kind, const QString& text)
{
    ignoreFinding(m_desk.session, document, kind, text);
}

void ProofreadingService::restoreIgnored(const core::ContentId& document)
{
    reportIgnoredFindings(m_desk.session, document);
}

void ProofreadingService::disableRule(ProblemKind kind)
{
    ProofreadingSettings settings = m_settings;
    settings.disabledRules.insert(idOf(kind));
    setSettings(settings);
    m_desk.navigator.say(
        tr("The rule “%1” is off. Settings, Proofreading turns it on again.").arg(titleOf(kind)));
}

void ProofreadingService::addToDictionary(const QString& word)
{
    say(m_userDictionary.add(word));
    emit userWordsChanged();
    dropChecks();
}

void ProofreadingService::removeFromDictionary(const QString& word)
{
    say(m_userDictionary.remove(word));
    emit userWordsChanged();
    dropChecks();
}

void ProofreadingService::asOneStep(
    QTextEdit& editor, const QString& label, const std::function<void()>& edit)
{
    auto* const bursts = editor.findChild<manuscript::TypingBursts*>(QString(), Qt::FindDirectChildrenOnly);
    if (bursts)
        bursts->applyAsStep(label, edit);
    else
        edit();
}

void ProofreadingService::followChanges(const core::project::ProjectChanges& changes)
{
    if (changes.isEverything) {
        m_ignored.clear();
        m_adopted.clear();
        m_known = m_desk.session.project().proofreading();
        refreshNames();
        // Not while the project is still being announced.
        QMetaObject::invokeMethod(this, &ProofreadingService::adoptFromSettings, Qt::QueuedConnection);
        return;
    }
    if (changes.areSettingsChanged)
        followChoices();
    const auto isEntity = [this](const core::ContentId& id) {
        return m_desk.session.project().findAs<core::entity::Entity>(id) != nullptr;
    };
    if (!changes.removed.empty() || std::ranges::any_of(changes.added, isEntity) ||
        std::ranges::any_of(changes.changed, isEntity))
        m_namesRest.start();
}

void ProofreadingService::adoptFromSettings()
{
    if (m_desk.session.isProjectOpen())
        m_adopted = adoptProofreadingFromSettings(m_desk.session, m_desk.settings);
}

void ProofreadingService::followChoices()
{
    const auto before = std::exchange(m_known, m_desk.session.project().proofreading());
    if (before == m_known)
        return;
    std::map<core::ContentId, std::array<core::writing::DocumentProofreading, 2>> records;
    for (const auto& record : before)
        records[record.documentId][0] = record;
    for (const auto& record : m_known)
        records[record.documentId][1] = record;
    bool areLanguagesChanged = false;
    for (const auto& [document, versions] : records) {
        areLanguagesChanged = areLanguagesChanged || versions[0].languages != versions[1].languages;
        if (versions[0].ignored == versions[1].ignored)
            continue;
        m_ignored.remove(document);
        emit ignoredChanged(document);
    }
    if (areLanguagesChanged)
        dropChecks();
}

void ProofreadingService::refreshNames()
{
    m_names = std::make_shared<WordSetSpellChecker>(codexWords(m_desk.session.project()));
    dropChecks();
}

void ProofreadingService::dropChecks()
{
    m_checks.clear();
    emit checksChanged();
}

void ProofreadingService::say(const core::Result<void>& result)
{
    if (!result)
        m_desk.navigator.say(result.message());
}

} // namespace tw::desktop::proofreading
