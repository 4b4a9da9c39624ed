#include "desktop/review/ExternalChanges.h"

#include "core/document/DocumentCommands.h"
#include "desktop/review/ConflictModel.h"
#include "desktop/review/DiskWatch.h"
#include "desktop/review/ResolveDialog.h"
#include "desktop/review/ReviewNotice.h"
#include "desktop/shell/MainWindow.h"
#include "desktop/shell/ProjectLife.h"
#include "desktop/support/NextMessage.h"
#include "desktop/support/TestDesk.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QDialog>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace tw::desktop::review {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::Document;
using test::NextMessage;

namespace {

/** Deals with the next window in which to resolve conflicts. */
class NextResolving : public QObject
{
public:
    using Deal = std::function<void(QDialog& dialog)>;

    explicit NextResolving(Deal deal)
        : m_deal(std::move(deal))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                m_timer.stop();
                wasShown = true;
                m_deal(*dialog);
            }
        });
        m_timer.start(0);
    }

    bool wasShown = false;

private:
    Deal m_deal;
    QTimer m_timer;
};

template <class Button>
Button* button(const QWidget& parent, const QString& text)
{
    for (Button* const candidate : parent.findChildren<Button*>()) {
        if (candidate->text().remove(u'&') == text && !candidate->isHidden())
            return candidate;
    }
    ADD_FAILURE() << "no button " << text.toStdString();
    return nullptr;
}

/** A window with a saved project of two chapters open, in a folder in which others write as well. */
class ExternalChangesTest : public testing::Test
{
protected:
    ExternalChangesTest()
        : desk(folder.path())
        , window(desk.context, QString())
    {
        desk.session.startNew(u"Low Water"_s);
        first = desk.addDocument(u"Ebb"_s, {}, 0);
        second = desk.addDocument(u"Flood"_s, {}, 1);
        desk.document(first).setBody({u"one\ntwo\nthree"_s, {}});
        EXPECT_TRUE(desk.session.saveAs(project()));
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QObject::connect(
            &changes(), &ExternalChanges::said, &window, [this](const QString& text) { said = text; });
    }

    QString project() const { return folder.filePath(u"project"_s); }
    ExternalChanges& changes() { return window.life().externalChanges(); }

    /** As a co-author's program would change a chapter's file. */
    void replaceOnDisk(const ContentId& id, const QByteArray& before, const QByteArray& after) const
    {
        QFile file(project() + u"/objects/%1.json"_s.arg(id.toString()));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const QByteArray bytes = file.readAll();
        ASSERT_TRUE(bytes.contains(before));
        file.resize(0);
        file.seek(0);
        file.write(QByteArray(bytes).replace(before, after));
    }

    void rename(const ContentId& id, const QString& title)
    {
        desk.session.apply(
            std::make_unique<core::document::SetDocumentTitleCommand>(desk.document(id), title));
    }

    void rewrite(const ContentId& id, const QString& body)
    {
        desk.session.apply(std::make_unique<core::document::SetDocumentBodyCommand>(
            desk.document(id), core::document::DocumentBody{body, {}}));
    }

    QTemporaryDir folder;
    test::TestDesk desk;
    shell::MainWindow window;
    ContentId first;
    ContentId second;
    QString said;
};

} // namespace

TEST_F(ExternalChangesTest, saysWhenNothingChanged)
{
    changes().check();
    EXPECT_EQ(said, u"No external changes — the project on disk matches what you have open."_s);
}

TEST_F(ExternalChangesTest, loadsTheVersionOnDisk)
{
    replaceOnDisk(first, "\"Ebb\"", "\"Neap\"");
    NextMessage message(u"Load On-Disk Version"_s);
    changes().check();
    EXPECT_EQ(
        message.text,
        u"1 project file(s) changed outside Vellory since you opened it, and you have no unsaved "
        u"edits here. Load the on-disk version now?"_s);
    EXPECT_EQ(said, u"Loaded the on-disk version of the project."_s);
    EXPECT_EQ(desk.document(first).title(), u"Neap"_s);
}

TEST_F(ExternalChangesTest, mergesDifferentLinesWithoutAskingAboutThem)
{
    rename(first, u"Slack"_s);
    replaceOnDisk(first, "one", "ONE");
    NextMessage message(u"Merge and Reload"_s);
    changes().check();
    EXPECT_TRUE(message.text.startsWith(u"1 file(s) changed outside Vellory and can be merged"));
    EXPECT_EQ(said, u"Merged external changes into the project."_s);
    EXPECT_EQ(desk.document(first).title(), u"Slack"_s);
    EXPECT_EQ(desk.document(first).body().text, u"ONE\ntwo\nthree"_s);
    EXPECT_FALSE(desk.session.isModified());
}

TEST_F(ExternalChangesTest, cancellingLeavesEverything)
{
    rename(first, u"Slack"_s);
    replaceOnDisk(first, "\"Ebb\"", "\"Neap\"");
    NextResolving resolving([](QDialog& dialog) {
        EXPECT_FALSE(button<QPushButton>(dialog, u"Apply and Reload"_s)->isEnabled()) << "nothing is chosen";
        dialog.reject();
    });
    changes().check();
    EXPECT_TRUE(resolving.wasShown);
    EXPECT_EQ(desk.document(first).title(), u"Slack"_s);
    EXPECT_TRUE(desk.session.isModified());
}

TEST_F(ExternalChangesTest, resolvesTheSameLineAsChosen)
{
    const struct
    {
        const char* name;
        QString choice;
        QString body;
    } cases[] = {
        {"mine", u"Keep my version"_s, u"MINE\ntwo\nthree"_s},
        {"theirs", u"Take on-disk version"_s, u"one\ntwo\nTHEIRS"_s},
        {"both", u"Merge both by paragraphs"_s, u"MINE\ntwo\nTHEIRS"_s},
    };
    for (const auto& [name, choice, body] : cases) {
        SCOPED_TRACE(name);
        rewrite(first, u"one\ntwo\nthree"_s);
        ASSERT_TRUE(desk.session.save());
        rewrite(first, u"MINE\ntwo\nthree"_s);
        replaceOnDisk(first, "three", "THEIRS");
        NextResolving resolving([&choice](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), u"Resolve External Changes"_s);
            auto* const table = dialog.findChild<QTableView*>();
            EXPECT_EQ(table->model()->rowCount(), 1);
            EXPECT_EQ(table->model()->index(0, 0).data().toString(), u"Ebb (document)"_s);
            button<QRadioButton>(dialog, choice)->click();
            EXPECT_EQ(table->model()->index(0, 1).data().toString(), choice);
            button<QPushButton>(dialog, u"Apply and Reload"_s)->click();
        });
        changes().check();
        EXPECT_TRUE(resolving.wasShown);
        EXPECT_EQ(said, u"Resolved external changes and reloaded the project."_s);
        EXPECT_EQ(desk.document(first).body().text, body);
    }
}

TEST_F(ExternalChangesTest, modelOffersWhatAppliesToEachFile)
{
    const auto files = app::persistence::serializeProject(desk.session.project());
    const QString firstPath = u"objects/%1.json"_s.arg(first.toString());
    const QString secondPath = u"objects/%1.json"_s.arg(second.toString());
    app::persistence::ProjectVersions versions{files, files, files};
    versions.mine[firstPath].replace("\"Ebb\"", "\"Slack\"");
    versions.theirs.erase(firstPath);
    versions.mine.erase(secondPath);
    versions.theirs[secondPath].replace("\"Flood\"", "\"Neap\"");
    const app::persistence::ProjectMerge merge(versions);
    ConflictModel model(merge, desk.icons, nullptr);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_EQ(model.rowCount(), 2);
    for (int row = 0; row < model.rowCount(); ++row) {
        const bool isFirst = model.file(row).path == firstPath;
        EXPECT_EQ(
            model.index(row, 0).data().toString(), isFirst ? u"Slack (document)"_s : u"Neap (document)"_s);
        EXPECT_EQ(model.index(row, 0).data(Qt::ToolTipRole).toString(), model.file(row).path);
        model.choose(row, app::persistence::Resolution::Paragraphs);
        EXPECT_FALSE(model.isDecided()) << "not offered here";
        model.choose(row, app::persistence::Resolution::Mine);
        EXPECT_EQ(
            model.index(row, 1).data().toString(),
            isFirst ? u"Keep my version"_s : u"Keep my version (delete the file)"_s);
        model.choose(row, app::persistence::Resolution::Theirs);
        EXPECT_EQ(
            model.index(row, 1).data().toString(),
            isFirst ? u"Take on-disk version (delete the file)"_s : u"Take on-disk version"_s);
        model.choose(row, app::persistence::Resolution::Open);
    }
    model.choose(0, app::persistence::Resolution::Mine);
    model.choose(1, app::persistence::Resolution::Mine);
    EXPECT_TRUE(model.isDecided());
}

TEST_F(ExternalChangesTest, tellsWhereTheWorkingCopyOfASingleFileWent)
{
    const QString path = folder.filePath(u"low water.vellory"_s);
    ASSERT_TRUE(desk.session.saveAs(path));
    ASSERT_TRUE(QFile::copy(path, folder.filePath(u"theirs"_s)));
    rename(first, u"Slack"_s);
    ASSERT_TRUE(desk.session.save());
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QFile::rename(folder.filePath(u"theirs"_s), path));

    const NextMessage message(u"Load On-Disk Version"_s, [] { return new NextMessage(u"Close"_s); });
    changes().check();
    EXPECT_EQ(desk.document(first).title(), u"Ebb"_s);
    ASSERT_TRUE(QTest::qWaitFor([&message] { return message.next && !message.next->title.isEmpty(); }));
    EXPECT_EQ(message.next->title, u"Project File Changed"_s);
    EXPECT_TRUE(message.next->text.contains(u"backed up to"_s)) << message.next->text.toStdString();
}

TEST_F(ExternalChangesTest, savingOpensTheReviewAndGoesOn)
{
    rename(first, u"Slack"_s);
    replaceOnDisk(second, "\"Flood\"", "\"Neap\"");
    NextMessage message(u"Merge and Reload"_s);
    window.life().save();
    EXPECT_FALSE(message.text.isEmpty());
    EXPECT_FALSE(desk.session.isModified());
    EXPECT_EQ(desk.document(first).title(), u"Slack"_s);
    EXPECT_EQ(desk.document(second).title(), u"Neap"_s);
}

TEST_F(ExternalChangesTest, statusBarTellsUntilItIsSettled)
{
    auto* const notice = window.findChild<ReviewNotice*>(u"reviewNotice"_s);
    ASSERT_TRUE(notice);
    EXPECT_TRUE(notice->isHidden());
    QSignalSpy looked(&changes().watch(), &DiskWatch::looked);
    replaceOnDisk(first, "\"Ebb\"", "\"Neap\"");
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(&window, &activation);
    while (notice->isHidden() && looked.wait())
        ;
    EXPECT_TRUE(notice->isVisible());
    const auto* const review = button<QToolButton>(*notice, u"Review…"_s);
    EXPECT_TRUE(review->toolTip().startsWith(u"Reopen the project to load the on-disk version"_s));
    EXPECT_EQ(review->accessibleDescription(), review->toolTip());
    NextMessage message(u"Load On-Disk Version"_s);
    button<QToolButton>(*notice, u"Review…"_s)->click();
    EXPECT_EQ(desk.document(first).title(), u"Neap"_s);
    EXPECT_TRUE(notice->isHidden());
}

TEST_F(ExternalChangesTest, neverLooksWhileSomebodyTypes)
{
    DiskWatch watch(desk.session, nullptr, std::chrono::milliseconds(0));
    QSignalSpy looked(&watch, &DiskWatch::looked);
    desk.session.setTypingPending(window, true);
    watch.lookSoon();
    for (int turn = 0; turn < 20; ++turn)
        QApplication::processEvents();
    EXPECT_TRUE(looked.isEmpty());
    desk.session.setTypingPending(window, false);
    EXPECT_TRUE(looked.wait());
}

} // namespace tw::desktop::review
