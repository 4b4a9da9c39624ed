#include "desktop/project/NewPlace.h"

#include "desktop/project/ProjectFileDialogs.h"

#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

namespace tw::desktop::project {

using namespace Qt::Literals::StringLiterals;

namespace {

class NewPlaceTest : public testing::Test
{
protected:
    void touch(const QString& name) const
    {
        ASSERT_TRUE(QDir(folder.path()).mkpath(QFileInfo(name).path()));
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    NewPlace place(const QString& name, ProjectForm form) const { return {name, folder.path(), form}; }

    QTemporaryDir folder;
};

} // namespace

TEST_F(NewPlaceTest, namesBecomeFitForFiles)
{
    struct Case
    {
        QString name;
        ProjectForm form;
        QString fileName;
    };
    const Case cases[] = {
        {u" Low Water "_s, ProjectForm::SingleFile, u"Low Water.vellory"_s},
        {u"Low Water"_s, ProjectForm::Folder, u"Low Water"_s},
        {u"a/b\\c:d"_s, ProjectForm::SingleFile, u"a-b-c-d.vellory"_s},
        {u"../../etc"_s, ProjectForm::Folder, u"-..-etc"_s},
        {u"..."_s, ProjectForm::SingleFile, u"project.vellory"_s},
        {u"Volume 1.5"_s, ProjectForm::SingleFile, u"Volume 1.5.vellory"_s},
        {u"Tide.vellory"_s, ProjectForm::Folder, u"Tide-vellory"_s},
        {u"CON"_s, ProjectForm::Folder, u"_CON"_s},
    };
    for (const Case& each : cases)
        EXPECT_EQ(pathOf(place(each.name, each.form)), folder.filePath(each.fileName))
            << each.name.toStdString();
}

TEST_F(NewPlaceTest, onlyFreePlacesAreAccepted)
{
    touch(u"taken.vellory"_s);
    touch(u"other/project.json"_s);
    touch(u"file"_s);
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"empty"_s));
    struct Case
    {
        NewPlace place;
        QString refusal; ///< How it begins.
    };
    const Case cases[] = {
        {place(u"new"_s, ProjectForm::SingleFile), {}},
        {{u"new"_s, folder.filePath(u"not/there/yet"_s)}, {}},
        {place(u"taken"_s, ProjectForm::Folder), {}},
        {place(u"  "_s, ProjectForm::SingleFile), u"Give the project a name."_s},
        {{u"new"_s, u""_s}, u"Choose a folder"_s},
        {{u"new"_s, u"relative"_s}, u"Choose a folder"_s},
        {{u"new"_s, folder.filePath(u"file"_s)},
         QDir::toNativeSeparators(folder.filePath(u"file"_s)) + u" is no"_s},
        {{u"new"_s, folder.filePath(u"other"_s)},
         QDir::toNativeSeparators(folder.filePath(u"other"_s)) + u" is the folder of another"_s},
        {place(u"taken"_s, ProjectForm::SingleFile), u"There is already something at"_s},
        {place(u"empty"_s, ProjectForm::Folder), u"There is already something at"_s},
    };
    for (const Case& each : cases) {
        const QString message = checkPlace(each.place).message();
        EXPECT_EQ(message.isEmpty(), each.refusal.isEmpty()) << message.toStdString();
        EXPECT_TRUE(message.startsWith(each.refusal)) << message.toStdString();
    }
    touch(u"taken 2.vellory"_s);
    EXPECT_EQ(withFreeName(place(u"taken"_s, ProjectForm::SingleFile)).name, u"taken 3"_s);
}

TEST_F(NewPlaceTest, theEndingDecidesHowItIsSaved)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"odd.vellory"_s));
    struct Case
    {
        QString chosen;
        ProjectForm form;
        QString path;
    };
    const Case cases[] = {
        {u"tide"_s, ProjectForm::SingleFile, u"tide.vellory"_s},
        {u"tide"_s, ProjectForm::Folder, u"tide"_s},
        {u"tide.VELLORY"_s, ProjectForm::Folder, u"tide.vellory"_s},
        {u"part 1.tarnwick"_s, ProjectForm::SingleFile, u"part 1.vellory"_s},
        {u"volume 1.5"_s, ProjectForm::SingleFile, u"volume 1.5.vellory"_s},
        {u"odd.vellory"_s, ProjectForm::Folder, u"odd.vellory"_s},
    };
    for (const Case& each : cases)
        EXPECT_EQ(pathToSaveAt(folder.filePath(each.chosen), each.form), folder.filePath(each.path));
}

TEST_F(NewPlaceTest, whatIsDraggedIsOneProject)
{
    touch(u"other/project.json"_s);
    const auto dragged = [this](const QStringList& names) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& name : names)
            urls.append(QUrl::fromLocalFile(folder.filePath(name)));
        data.setUrls(urls);
        return projectIn(data);
    };
    EXPECT_EQ(dragged({u"a.vellory"_s}), folder.filePath(u"a.vellory"_s));
    EXPECT_EQ(dragged({u"a.twbackup"_s}), folder.filePath(u"a.twbackup"_s));
    EXPECT_EQ(dragged({u"other"_s}), folder.filePath(u"other"_s));
    EXPECT_EQ(dragged({u"a.txt"_s}), QString());
    EXPECT_EQ(dragged({u"a.vellory"_s, u"b.vellory"_s}), QString());
    QMimeData remote;
    remote.setUrls({QUrl(u"https://example.org/a.vellory"_s)});
    EXPECT_EQ(projectIn(remote), QString());
}

} // namespace tw::desktop::project
