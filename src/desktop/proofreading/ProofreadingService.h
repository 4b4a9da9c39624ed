#pragma once

#include "app/style/spelling/Dictionaries.h"
#include "app/style/spelling/UserDictionary.h"
#include "core/project/ProjectChanges.h"
#include "desktop/proofreading/DocumentProofreading.h"
#include "desktop/proofreading/ProofreadingSettings.h"
#include "desktop/shell/DeskContext.h"

#include <QHash>
#include <QLocale>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>

class QTextEdit;

namespace tw::desktop::proofreading {

class EditorProofreader;

/** Where word lists lie. */
struct SpellingPlaces
{
    QString userDictionary;
    QStringList dictionaryFolders;
};
/** Those of this user on this system. */
[[nodiscard]] SpellingPlaces usualSpellingPlaces();

/** What a check is for. */
enum class CheckScope
{
    /** What the user wants to see in the text. */
    WhileTyping,
    /** All that is not switched off altogether. */
    Everything,
};

/**
 * What is right and wrong in the open project, for everyone who shows it: rules, languages, the user's words
 * and the names of the codex. Dictionaries are read on a thread of its own; until one is there, no word is
 * wrong. Main thread only; the checks it hands out may go anywhere.
 */
class ProofreadingService final : public QObject
{
    Q_OBJECT

public:
    /** The parts of the desk must outlive it. */
    ProofreadingService(const shell::DeskContext& desk, const SpellingPlaces& places, QObject* parent);
    /** Waits for a dictionary that is being read. */
    ~ProofreadingService() override;

    /** Proofreads what the editor shows, as long as it lives. */
    void attach(QTextEdit& editor, const core::ContentId& document);
    /** Of the editor that has the keyboard, else any that shows the document; none when none does. */
    [[nodiscard]] EditorProofreader* proofreaderOf(const core::ContentId& document) const;
    /** Offers suggestions for what was found at the cursor of the editor that has the keyboard. */
    void popUpSuggestions();

    [[nodiscard]] const ProofreadingSettings& settings() const { return m_settings; }
    void setSettings(const ProofreadingSettings& settings);
    /** Installed dictionaries, by language. */
    [[nodiscard]] QStringList languages() const;
    /** What a document is checked in: its own languages, the user's, or that of the system. */
    [[nodiscard]] QStringList languagesOf(const core::ContentId& document) const;
    /** Empty when it follows the settings. */
    [[nodiscard]] QStringList ownLanguagesOf(const core::ContentId& document) const;
    /** What a document is read aloud in: the first of its own languages, or that of the interface. */
    [[nodiscard]] QLocale spokenLanguageOf(const core::ContentId& document) const;
    /** As one step, kept in the project; none has it follow the settings again. */
    void setLanguagesOf(const core::ContentId& document, const QStringList& languages);
    /** Why a chosen dictionary could not be read; empty when all could. */
    [[nodiscard]] QString dictionaryFailure() const;

    [[nodiscard]] std::shared_ptr<const ProseCheck> check(const core::ContentId& document, CheckScope scope);
    [[nodiscard]] const IgnoredFindings& ignored(const core::ContentId& document);
    /** Findings of the kind with this text are no longer reported for the document; one step, kept in the
     * project. */
    void ignore(const core::ContentId& document, ProblemKind kind, const QString& text);
    /** Forgets what is ignored in the document. */
    void restoreIgnored(const core::ContentId& document);
    /** The rule is off in all projects until the settings say otherwise. */
    void disableRule(ProblemKind kind);

    [[nodiscard]] const QStringList& userWords() const { return m_userDictionary.words(); }
    void addToDictionary(const QString& word);
    void removeFromDictionary(const QString& word);

    /** Runs an edit of the editor's text as one step of the history, where its text belongs to a document. */
    void asOneStep(QTextEdit& editor, const QString& label, const std::function<void()>& edit);
    [[nodiscard]] const theme::ThemeManager& themes() const { return m_desk.themes; }
    /** Waits until the dictionaries asked for were read. */
    void finishReading();

signals:
    /** Every text has to be checked again. */
    void checksChanged();
    void ignoredChanged(const tw::core::ContentId& document);
    void userWordsChanged();

private:
    using Checker = std::shared_ptr<const app::style::spelling::SpellChecker>;
    struct ReadDictionary
    {
        Checker checker;
        QString failure;
    };

    void followChanges(const core::project::ProjectChanges& changes);
    void adoptFromSettings();
    void followChoices();
    void refreshNames();
    void dropChecks();
    void read(const QString& language);
    void finish(const QString& language, const ReadDictionary& dictionary);
    [[nodiscard]] app::style::spelling::SpellingSources sourcesFor(const QStringList& languages);
    void say(const core::Result<void>& result);

    shell::DeskContext m_desk;
    ProofreadingSettings m_settings;
    std::vector<app::style::spelling::Dictionary> m_installed;
    QString m_systemLanguage;
    /** Dictionaries by language; without a checker while they are read and when that failed. */
    std::map<QString, ReadDictionary> m_dictionaries;
    app::style::spelling::UserDictionary m_userDictionary;
    Checker m_names;
    QTimer m_namesRest;
    /** By languages, joined, and what they are for. */
    std::map<std::pair<QString, CheckScope>, std::shared_ptr<const ProseCheck>> m_checks;
    QHash<core::ContentId, IgnoredFindings> m_ignored;
    /** The project's choices as they were when the rest was told of them. */
    std::vector<core::writing::DocumentProofreading> m_known;
    /** Documents whose choices still stand in the settings, where they were before the project had them. */
    std::vector<core::ContentId> m_adopted;
    std::vector<EditorProofreader*> m_editors;
    /** Last, so that its thread ends before anything else goes. */
    QThreadPool m_pool;
};

} // namespace tw::desktop::proofreading
