#include "desktop/shell/MainWindow.h"

#include "app/workspace/WriteAdvice.h"
#include "desktop/calendar/CalendarDialog.h"
#include "desktop/codex/CodexPanel.h"
#include "desktop/codex/PropertyCleanUpDialog.h"
#include "desktop/continuity/ContinuityProblems.h"
#include "desktop/continuity/RulesDialog.h"
#include "desktop/goals/GoalsDialog.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/ManuscriptPanel.h"
#include "desktop/manuscript/TextPage.h"
#include "desktop/problems/ProblemsPanel.h"
#include "desktop/project/PackTransfer.h"
#include "desktop/project/ProjectBackups.h"
#include "desktop/project/ProjectSettingsDialog.h"
#include "desktop/proofreading/LanguageMenu.h"
#include "desktop/proofreading/ProofreadingService.h"
#include "desktop/review/ExternalChanges.h"
#include "desktop/settings/SettingsDialog.h"
#include "desktop/settings/Shortcuts.h"
#include "desktop/shell/AboutDialog.h"
#include "desktop/shell/AudienceSelector.h"
#include "desktop/shell/DockLayout.h"
#include "desktop/shell/FocusRound.h"
#include "desktop/shell/NamedLayouts.h"
#include "desktop/shell/ProjectLife.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/RecentProjects.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/speech/ReadAloud.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using icons::Icon;

namespace {

constexpr int shownRecent = 10;

} // namespace

QAction* MainWindow::addAction(
    QMenu& menu, const QString& name, Icon icon, const QString& text, const QKeySequence& keys,
    std::function<void()> handler)
{
    QAction* const action = menu.addAction(m_desk.icons.icon(icon), text);
    action->setObjectName(name);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, std::move(handler));
    return action;
}

void MainWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    buildInsertMenu();
    buildFormatMenu();
    buildViewMenu();
    buildProjectMenu();
    buildCodexMenu();
    buildToolsMenu();
    buildWindowsMenu();
    buildHelpMenu();
    menuBar()->setCornerWidget(m_audience);
    m_shortcuts->collect(*menuBar());
}

void MainWindow::buildFileMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&File"));
    addAction(menu, u"file.new"_s, Icon::New, tr("&New Project…"), QKeySequence::New, [this] {
        m_life->startNew();
    });
    addAction(menu, u"file.open"_s, Icon::Open, tr("&Open Project…"), QKeySequence::Open, [this] {
        m_life->chooseAndOpen();
    });
    addAction(menu, u"file.openFolder"_s, Icon::Folder, tr("Open Project &Folder…"), {}, [this] {
        m_life->chooseAndOpenFolder();
    });
    m_recentMenu = menu.addMenu(m_desk.icons.icon(Icon::History), tr("Open &Recent"));
    connect(m_recentMenu, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
    if (m_life->hasSample()) {
        addAction(menu, u"file.openSample"_s, Icon::Manuscript, tr("Open the Sa&mple"), {}, [this] {
            m_life->openSample();
        });
    }
    menu.addSeparator();
    m_saveAction = addAction(
        menu, u"file.save"_s, Icon::Save, tr("&Save"), QKeySequence::Save, [this] { m_life->save(); });
    m_projectActions = {
        m_saveAction,
        addAction(
            menu, u"file.saveAs"_s, Icon::Export, tr("Save &As…"),
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), [this] { m_life->saveAs(); }),
        addAction(
            menu, u"file.reload"_s, Icon::Refresh, tr("Reload from &Disk"), {}, [this] { m_life->reload(); }),
        addAction(
            menu, u"file.checkExternalChanges"_s, Icon::Search, tr("&Check for External Changes…"), {},
            [this] { m_life->externalChanges().check(); }),
    };
    menu.addSeparator();
    addAction(
        menu, u"file.welcome"_s, Icon::Layout, tr("Show the &Welcome Page"), {}, [this] { showWelcome(); });
    menu.addSeparator();
    addAction(menu, u"file.quit"_s, Icon::Close, tr("&Quit"), QKeySequence::Quit, [this] { close(); });
}

void MainWindow::buildProjectMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Project"));
    project::ProjectBackups& backups = m_life->backups();
    m_projectActions.append(addAction(
        menu, u"project.settings"_s, Icon::Settings, tr("Project &Settings…"), {},
        [this] { project::editProjectSettings(m_desk, this); }));
    m_projectActions.append(addAction(
        menu, u"project.audiences"_s, Icon::Eye, tr("Manage &Audiences…"), {},
        [this] { project::editProjectSettings(m_desk, this, project::ProjectSettingsPart::Audiences); }));
    m_projectActions.append(addAction(
        menu, u"project.calendar"_s, Icon::Date, tr("Edit &Calendar…"), {},
        [this] { calendar::editCalendar(m_desk, this); }));
    m_projectActions.append(addAction(
        menu, u"project.goals"_s, Icon::Target, tr("Writing &Goals…"), {},
        [this] { goals::editGoals(m_desk, *m_writing, this); }));
    menu.addSeparator();
    m_projectActions.append(addAction(
        menu, u"project.backUp"_s, Icon::Snapshot, tr("&Back Up Project"), {},
        [&backups] { backups.backUp(); }));
    addAction(menu, u"project.restore"_s, Icon::History, tr("&Restore from a Backup…"), {}, [&backups] {
        backups.chooseAndRestore();
    });
    addAction(menu, u"project.revealBackups"_s, Icon::Folder, tr("Show Backups &Folder"), {}, [&backups] {
        backups.revealFolder();
    });
}

void MainWindow::buildToolsMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Tools"));
    addProofreadingActions(menu);
    addReadAloud(menu);
    menu.addSeparator();
    addAction(
        menu, u"tools.settings"_s, Icon::Settings, tr("&Settings…"), QKeySequence(Qt::CTRL | Qt::Key_Comma),
        [this] { showSettings(settings::SettingsPage::Appearance); });
}

void MainWindow::addReadAloud(QMenu& menu)
{
    QAction* const action = addAction(
        menu, u"tools.readAloud"_s, Icon::Text, tr("Read &Aloud"),
        QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_R), [this] { readAloud(); });
    action->setCheckable(true);
    // What is checked is what is being read, not what was asked for.
    connect(action, &QAction::triggered, action, [this, action] {
        action->setChecked(m_readAloud->isReading());
    });
    connect(m_readAloud, &speech::ReadAloud::readingChanged, action, &QAction::setChecked);
    connect(m_readAloud, &speech::ReadAloud::failed, this, [this](const QString& reason) {
        const QString advice = tr("The system's speech broke off. Check its voices, then read aloud again.");
        say(reason.isEmpty() ? advice : tr("%1 It says: %2").arg(advice, reason));
    });
    m_projectActions.append(action);
}

void MainWindow::readAloud()
{
    if (m_readAloud->isReading()) {
        m_readAloud->stop();
        return;
    }
    const auto* const page = qobject_cast<manuscript::TextPage*>(m_workArea->currentPage());
    const manuscript::BodyEditor* const editor = page ? page->currentEditor() : nullptr;
    if (!editor) {
        say(tr("Open a document to have it read aloud."));
        return;
    }
    QTextCursor cursor = editor->textCursor();
    if (!cursor.hasSelection())
        cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    const QLocale language = m_proofreading->spokenLanguageOf(page->editedDocument());
    switch (m_readAloud->read(cursor.selectedText(), language)) {
    case speech::ReadingStart::Reading:
        break;
    case speech::ReadingStart::NothingToRead:
        say(editor->textCursor().hasSelection() ? tr("There is nothing to read in what is selected.")
                                                : tr("There is nothing to read behind the cursor."));
        break;
    case speech::ReadingStart::NoVoice:
        say(tr("No voice is installed. Install a speech engine for your system to have texts read aloud."));
        break;
    }
}

void MainWindow::addProofreadingActions(QMenu& menu)
{
    using proofreading::ProofreadingSettings;
    const auto addSwitch = [&](const QString& name, const QString& text, const QKeySequence& keys,
                               bool ProofreadingSettings::*isOn) {
        QAction* const action = addAction(menu, name, Icon::Check, text, keys, [this, isOn] {
            ProofreadingSettings settings = m_proofreading->settings();
            settings.*isOn = !(settings.*isOn);
            m_proofreading->setSettings(settings);
        });
        action->setCheckable(true);
        const auto refresh = [this, action, isOn] { action->setChecked(m_proofreading->settings().*isOn); };
        connect(m_proofreading, &proofreading::ProofreadingService::checksChanged, action, refresh);
        refresh();
    };
    addSwitch(
        u"tools.spellWhileTyping"_s, tr("&Check Spelling While Typing"), QKeySequence(Qt::Key_F7),
        &ProofreadingSettings::marksSpelling);
    addSwitch(
        u"tools.proofreadWhileTyping"_s, tr("&Proofread While Typing"), QKeySequence(Qt::SHIFT | Qt::Key_F7),
        &ProofreadingSettings::marksStyle);
    QMenu* const languages = menu.addMenu(m_desk.icons.icon(Icon::Language), tr("&Language of the Document"));
    connect(languages, &QMenu::aboutToShow, this, [this, languages] {
        proofreading::fillLanguageMenu(
            *languages, *m_proofreading, manuscript::objectWorkedOn(m_workArea->currentPage()));
    });
    addAction(
        menu, u"tools.suggestions"_s, Icon::ChevronDown, tr("Su&ggestions at the Cursor"),
        QKeySequence(Qt::CTRL | Qt::Key_Period), [this] { m_proofreading->popUpSuggestions(); });
    addAction(menu, u"tools.problems"_s, Icon::Warning, tr("P&roblems"), {}, [this] { showProblems(); });
    menu.addSeparator();
    m_projectActions.append(
        addAction(menu, u"tools.continuity"_s, Icon::Timeline, tr("Check C&ontinuity"), {}, [this] {
            m_problems->showWholeManuscript();
            showProblems();
            const auto sayResult = [this](qsizetype conflicts) {
                say(conflicts == 0
                        ? tr("The story has no conflicts.")
                        : tr("The story has %Ln conflicts.", nullptr, static_cast<int>(conflicts)));
            };
            connect(
                m_continuity, &continuity::ContinuityProblems::checked, this, sayResult,
                Qt::SingleShotConnection);
            m_continuity->checkNow();
        }));
    m_projectActions.append(addAction(
        menu, u"tools.continuityRules"_s, Icon::TimelineEvent, tr("Continuity R&ules…"), {},
        [this] { continuity::editContinuityRules(m_desk, this); }));
}

void MainWindow::showProblems()
{
    m_docks->showPanel(u"problems"_s);
    m_problems->setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::showSettings(settings::SettingsPage page)
{
    settings::SettingsDialog dialog(m_desk, *m_shortcuts, *m_proofreading, this);
    connect(
        &dialog, &settings::SettingsDialog::editorSettingsChanged, this, &MainWindow::followEditorSettings);
    dialog.showPage(page);
    dialog.exec();
    m_desk.settings.sync();
    const QString folder = QFileInfo(m_desk.settings.fileName()).path();
    auto& files = m_desk.session.workspace().environment().fileSystem;
    if (const QString advice = app::workspace::writeAdvice(files, folder); !advice.isEmpty())
        say(tr("The settings hold only until Vellory is closed. %1").arg(advice));
}

void MainWindow::buildCodexMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Codex"));
    for (QAction* const action : m_codex->menuActions())
        menu.addAction(action);
    menu.addSeparator();
    m_projectActions.append(addAction(
        menu, u"codex.cleanUp"_s, Icon::OwnField, tr("Clean &Up Properties…"), {},
        [this] { codex::cleanUpProperties(m_desk, this); }));
    m_projectActions.append(addAction(
        menu, u"codex.importPack"_s, Icon::Import, tr("&Import Content Pack…"), {},
        [this] { project::importContentPack(m_desk, this); }));
    m_projectActions.append(addAction(
        menu, u"codex.exportPack"_s, Icon::Export, tr("E&xport Content Pack…"), {},
        [this] { project::exportContentPack(m_desk, this); }));
}

void MainWindow::buildWindowsMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Windows"));
    menu.setObjectName(u"windowsMenu"_s);
    m_docks->fillMenu(menu);
    addAction(
        menu, u"windows.nextPart"_s, Icon::ChevronRight, tr("Go to Ne&xt Part"), QKeySequence(Qt::Key_F6),
        [this] { m_focusRound->step(FocusStep::Next); });
    addAction(
        menu, u"windows.previousPart"_s, Icon::ChevronLeft, tr("Go to Pre&vious Part"),
        QKeySequence(Qt::SHIFT | Qt::Key_F6), [this] { m_focusRound->step(FocusStep::Previous); });
    menu.addSeparator();
    m_layouts->fillMenu(menu);
}

void MainWindow::buildHelpMenu()
{
    QMenu& menu = *menuBar()->addMenu(tr("&Help"));
    addAction(menu, u"help.about"_s, Icon::Information, tr("&About Vellory"), {}, [this] {
        AboutDialog(this).exec();
    });
}

void MainWindow::fillRecentMenu()
{
    m_recentMenu->clear();
    const QStringList recent = RecentProjects(m_desk.settings).paths();
    for (const QString& path : recent.first(std::min<qsizetype>(recent.size(), shownRecent))) {
        QAction* const action = m_recentMenu->addAction(describeRecent(path).name);
        action->setToolTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { m_life->open(path); });
    }
    if (recent.isEmpty())
        m_recentMenu->addAction(tr("Nothing opened yet"))->setEnabled(false);
}

} // namespace tw::desktop::shell
