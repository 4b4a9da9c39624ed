#include "desktop/review/FileTitles.h"

#include "app/persistence/codec/CategoryCodec.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/files/ProjectFiles.h"
#include "desktop/shell/ObjectTitles.h"

#include <QCoreApplication>

namespace tw::desktop::review {

using app::persistence::FileMerge;
using app::persistence::FileVersion;
using core::content::ContentKind;
using icons::Icon;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("FileTitles", text);
}

/** A title with what it is the title of. */
QString withKind(ContentKind kind)
{
    switch (kind) {
    case ContentKind::Document:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (document)"));
    case ContentKind::Entity:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (entity)"));
    case ContentKind::Spreadsheet:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (table)"));
    case ContentKind::Chart:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (chart)"));
    case ContentKind::Map:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (map)"));
    case ContentKind::Timeline:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (timeline)"));
    case ContentKind::TimelineEvent:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (event)"));
    case ContentKind::Media:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (media)"));
    case ContentKind::Source:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (source)"));
    case ContentKind::Task:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (task)"));
    case ContentKind::Canvas:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (board)"));
    case ContentKind::Comment:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (comment)"));
    case ContentKind::Language:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (language)"));
    case ContentKind::RandomTable:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (random table)"));
    case ContentKind::StatBlock:
        return translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (stat block)"));
    }
    Q_UNREACHABLE();
}

} // namespace

FileTitle fileTitle(const FileMerge& file)
{
    if (file.path == app::persistence::projectFileName)
        return {translated(QT_TRANSLATE_NOOP("FileTitles", "Settings of the project")), Icon::Settings};
    const FileVersion& version = file.versions.mine ? file.versions.mine : file.versions.theirs;
    app::persistence::ParseScratch scratch;
    if (version && app::persistence::isJsonFileIn(app::persistence::objectsFolder, file.path)) {
        if (const auto object = app::persistence::parseObject(*version, file.path, scratch)) {
            const ContentKind kind = object.value()->kind();
            return {withKind(kind).arg(shell::objectTitle(*object.value())), icons::iconForKind(kind)};
        }
    } else if (version) {
        if (const auto category = app::persistence::parseCategory(*version, file.path, scratch)) {
            return {
                translated(QT_TRANSLATE_NOOP("FileTitles", "%1 (category)"))
                    .arg(shell::shownName(category.value().name)),
                Icon::Category};
        }
    }
    return {file.path, Icon::Document};
}

} // namespace tw::desktop::review
