#include "desktop/project/RestoreDialog.h"

#include "desktop/project/BackupModel.h"
#include "desktop/support/TestDesk.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QTableView>

#include <gtest/gtest.h>

namespace tw::desktop::project {

using namespace Qt::Literals::StringLiterals;
using app::persistence::BackupFile;

namespace {

BackupFile backup(const QString& project, int hour)
{
    const QString name = u"%1-20260309-%20000000.twbackup"_s.arg(project).arg(hour);
    return {u"/backups/"_s + name, {project, QDate(2026, 3, 9), QTime(hour, 0)}, 4096};
}

} // namespace

TEST(RestoreDialog, showsOwnBackupsAndFollowsTheChosenOneWithTheName)
{
    test::TestDesk desk;
    RestoreSubject subject{
        {backup(u"Tide"_s, 12), backup(u"Ebb"_s, 11)}, u"Ebb"_s, {}, {u"Restored"_s, desk.folder.path()}};
    EXPECT_EQ(backupsToShow(subject, false).size(), 1U);
    EXPECT_EQ(backupsToShow(subject, true).size(), 2U);
    RestoreDialog dialog(desk.context, subject, nullptr);
    EXPECT_EQ(dialog.restoration().backupPath, subject.backups[1].path);
    EXPECT_EQ(dialog.restoration().place.name, u"Ebb"_s);

    auto* const name = dialog.findChild<QLineEdit*>(u"projectName"_s);
    name->setText(u"Mine"_s);
    emit dialog.findChild<QTableView*>(u"backups"_s)->selectionModel()->currentRowChanged({}, {});
    EXPECT_EQ(dialog.restoration().place.name, u"Mine"_s) << "a name that the user gave stays";

    subject.chosenFile = u"/elsewhere/Flood.twbackup"_s;
    const RestoreDialog chosen(desk.context, subject, nullptr);
    EXPECT_EQ(chosen.restoration().backupPath, subject.chosenFile);
    EXPECT_EQ(chosen.restoration().place.name, u"Flood"_s);
}

TEST(BackupModel, keepsTheRulesOfModels)
{
    BackupModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setBackups({backup(u"Tide"_s, 12), backup(u"Ebb"_s, 11)});
    EXPECT_EQ(model.index(1, BackupModel::Project).data().toString(), u"Ebb"_s);
}

} // namespace tw::desktop::project
