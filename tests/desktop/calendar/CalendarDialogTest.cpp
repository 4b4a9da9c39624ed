#include "desktop/calendar/CalendarDialog.h"

#include "desktop/fields/NoteLabel.h"
#include "desktop/support/NextDialog.h"
#include "desktop/support/TestDesk.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace tw::desktop::calendar {

using namespace Qt::Literals::StringLiterals;
using test::NextDialog;

namespace {

template <class Widget>
Widget& child(CalendarDialog& dialog, const QString& name)
{
    return *dialog.findChild<Widget*>(name);
}

QPushButton& button(QWidget& inside, const QString& text)
{
    for (QPushButton* const each : inside.findChildren<QPushButton*>()) {
        if (each->text().remove(u'&') == text)
            return *each;
    }
    throw std::runtime_error("no such button: " + text.toStdString());
}

QStringList notes(const CalendarDialog& dialog)
{
    QStringList texts;
    for (const auto* const note : dialog.findChildren<fields::NoteLabel*>())
        texts.append(note->text());
    return texts;
}

} // namespace

TEST(CalendarDialogTest, editsCalendarAndReckoningsAsOneStep)
{
    test::TestDesk desk;
    const NextDialog<CalendarDialog> next([](CalendarDialog& dialog) {
        auto& months = child<QTableWidget>(dialog, u"months"_s);
        months.item(1, 0)->setText(u"Frostwater"_s);
        months.item(1, 1)->setData(Qt::EditRole, 40);
        months.setCurrentCell(1, 0);
        button(*months.parentWidget(), u"Move Up"_s).click();
        auto& weekdays = child<QListWidget>(dialog, u"weekdays"_s);
        weekdays.setCurrentRow(6);
        button(*weekdays.parentWidget(), u"Remove"_s).click();
        auto& eras = child<QTableWidget>(dialog, u"eras"_s);
        button(*eras.parentWidget(), u"Add"_s).click();
        eras.item(0, 0)->setText(u"Survey"_s);
        eras.item(0, 1)->setText(u"-12"_s);
        eras.item(0, 2)->setCheckState(Qt::Checked);

        auto& reckonings = child<QListWidget>(dialog, u"reckonings"_s);
        button(*reckonings.parentWidget(), u"Add Reckoning"_s).click();
        EXPECT_EQ(reckonings.item(0)->text(), u"New reckoning"_s);
        child<QSpinBox>(dialog, u"epochYear"_s).setValue(-3);
        button(dialog, u"Apply Calendar"_s).click();
    });
    editCalendar(desk.context, nullptr);
    ASSERT_TRUE(next.wasSeen());
    const core::calendar::Calendar& calendar = desk.session.project().calendar();
    EXPECT_EQ(calendar.months().first().name, u"Frostwater"_s);
    EXPECT_EQ(calendar.months().first().days, 40);
    EXPECT_EQ(calendar.months().at(1).name, u"January"_s);
    EXPECT_EQ(calendar.weekdays().size(), 6);
    EXPECT_EQ(calendar.eras(), (QList<core::calendar::CalendarEra>{{u"Survey"_s, -12, true}}));
    ASSERT_EQ(desk.session.project().reckonings().size(), 1U);
    const core::calendar::Reckoning& reckoning = desk.session.project().reckonings().front();
    EXPECT_EQ(reckoning.epochOffsetMinutes, calendar.minutesFromParts({-3}));
    EXPECT_EQ(reckoning.calendar, calendar) << "a full copy of what stood in the form";
    desk.session.undo();
    EXPECT_EQ(desk.session.project().calendar(), core::calendar::Calendar());
    EXPECT_TRUE(desk.session.project().reckonings().empty());
}

TEST(CalendarDialogTest, staysOpenUntilTheCalendarMakesSense)
{
    test::TestDesk desk;
    CalendarDialog dialog(desk.context, {}, nullptr);
    auto& months = child<QTableWidget>(dialog, u"months"_s);
    auto& eras = child<QTableWidget>(dialog, u"eras"_s);
    button(*eras.parentWidget(), u"Add"_s).click();
    eras.item(0, 1)->setText(u"soon"_s);
    dialog.accept();
    EXPECT_TRUE(notes(dialog).contains(u"Every era needs a whole-number start year."_s));
    while (months.rowCount() > 0) {
        months.setCurrentCell(0, 0);
        button(*months.parentWidget(), u"Remove"_s).click();
    }
    dialog.accept();
    EXPECT_TRUE(notes(dialog).contains(u"A calendar needs at least one month."_s));
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

} // namespace tw::desktop::calendar
