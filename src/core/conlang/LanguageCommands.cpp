#include "core/conlang/LanguageCommands.h"

#include <QCoreApplication>

namespace tw::core::conlang {

QString SetLanguageCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit language");
}

QString SetLanguageGrammarCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit grammar");
}

QString SetLanguageOrthographyCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit orthography");
}

QString SetLanguagePhonotacticsCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit phonotactics");
}

QString SetLanguageSoundChangesCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit sound changes");
}

QString SetLanguageWritingSystemCommand::text() const
{
    return QCoreApplication::translate("UndoCommand", "Edit writing system");
}

} // namespace tw::core::conlang
