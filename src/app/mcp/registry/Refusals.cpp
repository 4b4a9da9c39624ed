#include "app/mcp/registry/Refusals.h"

#include "app/workspace/MountedLibrary.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

QString mountedNotEdited(const QString& name, const QString& library)
{
    return u"'%1' lives in the mounted library '%2'; this server edits only the open project. Open the "
           u"library as its "
           "own project to change it."_s.arg(name, library);
}

QString mountedNotChanged(const QString& name, const QString& library)
{
    return u"'%1' lives in the mounted library '%2', which this server cannot change."_s.arg(name, library);
}

QString mountedNotOwn(const QString& name, const QString& library)
{
    return u"'%1' lives in the mounted library '%2'; this server works on the open project's own content."_s
        .arg(name, library);
}

QString mountedMark(const QString& library)
{
    return u"From the mounted library '%1'."_s.arg(library);
}

QString mountedHeading(const workspace::MountedLibrary* library)
{
    return library ? mountedMark(library->name) + u'\n' : QString();
}

QString excludedFromChange(const QString& name)
{
    return u"'%1' is excluded from AI and cannot be changed."_s.arg(name);
}

QString excludedFromUse(const QString& name)
{
    return u"'%1' is excluded from AI and cannot be used here."_s.arg(name);
}

QString excluded(const QString& name)
{
    return u"'%1' is excluded from AI."_s.arg(name);
}

QString excludedEntitiesOmitted(qsizetype count)
{
    return u"%1 entity(ies) excluded from AI were omitted."_s.arg(count);
}

QString locked(const QString& name)
{
    return u"'%1' is locked. Only the person writing it can unlock it, from the app -- there is no tool for that."_s
        .arg(name);
}

} // namespace tw::app::mcp
