// tw_kill_child PROJECT DATA LOG SEED OPERATION program|power
//
// Works on a project until it is killed, by itself at an operation of the file system or by its parent at any
// time (operation 0).
#include "kill/KilledProgram.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    using tw::test::Death;
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 7)
        return 2;
    const tw::test::MortalFileSystem::Plan plan{
        arguments.at(5).toLongLong(),
        arguments.at(6) == QLatin1StringView("power") ? Death::OfThePower : Death::OfTheProgram,
        arguments.at(4).toUInt()};
    tw::test::KilledProgram({arguments.at(1), arguments.at(2), arguments.at(3)}, plan).run();
    return 1;
}
