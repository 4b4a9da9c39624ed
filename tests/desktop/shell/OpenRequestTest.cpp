#include "desktop/shell/OpenRequest.h"

#include "desktop/support/NextMessage.h"

#include <QDialog>
#include <QDir>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using test::NextMessage;

namespace {

class OpenRequestTest : public testing::Test
{
protected:
    OpenRequestTest()
    {
        EXPECT_TRUE(QDir(folder.path()).mkpath(u"My.Novel"_s));
        window.show();
    }

    QTemporaryDir folder;
    QString project = folder.filePath(u"My.Novel"_s);
    QMainWindow window;
    QStringList opened;
    QList<QStringList> started;
    bool canStart = true;
    OpenRequests requests{
        window,
        {[this](const QString& path) { opened.append(path); },
         [this](const QStringList& arguments) {
             started.append(arguments);
             return canStart;
         }}};
};

} // namespace

TEST_F(OpenRequestTest, asksWhereAndDoesWhatIsAnswered)
{
    const QString file = folder.filePath(u"Low & <b>Water</b>.vellory"_s);
    QFile other(folder.filePath(u"Other.vellory"_s));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    const struct
    {
        QString path;
        QString button;
        QString question;
        QStringList opened;
        QList<QStringList> started;
    } cases[] = {
        {other.fileName(),
         u"This Window"_s,
         u"Vellory is already open. Where should “Other” open?"_s,
         {other.fileName()},
         {}},
        {project,
         u"New Window"_s,
         u"Vellory is already open. Where should “My.Novel” open?"_s,
         {},
         {{u"--new-instance"_s, project}}},
        {project + u'/', u"Cancel"_s, u"Vellory is already open. Where should “My.Novel” open?"_s, {}, {}},
        {file, u"Close"_s, u"The project could not be found: "_s + QDir::toNativeSeparators(file), {}, {}},
    };
    for (const auto& sample : cases) {
        opened.clear();
        started.clear();
        const NextMessage message(sample.button);
        requests.receive(sample.path);
        EXPECT_EQ(message.text, sample.question);
        EXPECT_EQ(message.title, u"Open Project"_s);
        EXPECT_EQ(opened, sample.opened);
        EXPECT_EQ(started, sample.started);
    }
}

TEST_F(OpenRequestTest, anEmptyPathOnlyBringsTheWindowBack)
{
    window.showMinimized();
    requests.receive(QString());
    EXPECT_FALSE(window.isMinimized());
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(OpenRequestTest, aProgramThatDoesNotStartIsTold)
{
    canStart = false;
    const NextMessage question(u"New Window"_s, [] { return new NextMessage(u"Close"_s); });
    requests.receive(project);
    EXPECT_EQ(started.size(), 1);
    ASSERT_TRUE(question.next);
    EXPECT_TRUE(question.next->text.contains(u"My.Novel"_s)) << question.next->text.toStdString();
}

TEST_F(OpenRequestTest, requestsWaitForTheDialogThatIsOpen)
{
    QDialog dialog(&window);
    dialog.open();
    ASSERT_EQ(QApplication::activeModalWidget(), &dialog);
    requests.receive(project);
    requests.receive(project);
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog) << "no question on top of it";

    const NextMessage message(u"This Window"_s);
    dialog.reject();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !opened.isEmpty(); }));
    EXPECT_EQ(opened, QStringList{project}) << "the same request twice is one";
    EXPECT_FALSE(message.text.isEmpty());
}

} // namespace tw::desktop::shell
