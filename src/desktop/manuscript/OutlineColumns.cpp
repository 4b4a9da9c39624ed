#include "desktop/manuscript/OutlineColumns.h"

#include "core/document/DocumentCommands.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>
#include <QLocale>

#include <set>

namespace tw::desktop::manuscript {

namespace doc = core::document;
using doc::Document;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("OutlineColumns", text);
}

template <class Command, class Value>
bool apply(shell::ProjectSession& session, Document& document, const Value& present, Value value)
{
    if (value == present)
        return false;
    session.apply(std::make_unique<Command>(document, std::move(value)));
    return true;
}

} // namespace

QString outlineHeading(OutlineColumn column)
{
    switch (column) {
    case OutlineColumn::Title:
        return translated(QT_TRANSLATE_NOOP("OutlineColumns", "Title"));
    case OutlineColumn::Synopsis:
        return translated(QT_TRANSLATE_NOOP("OutlineColumns", "Synopsis"));
    case OutlineColumn::Status:
        return translated(QT_TRANSLATE_NOOP("OutlineColumns", "Status"));
    case OutlineColumn::PointOfView:
        return translated(QT_TRANSLATE_NOOP("OutlineColumns", "Point of view"));
    case OutlineColumn::StoryDate:
        return translated(QT_TRANSLATE_NOOP("OutlineColumns", "Story date"));
    case OutlineColumn::Words:
        return translated(QT_TRANSLATE_NOOP("OutlineColumns", "Words"));
    case OutlineColumn::Target:
        return translated(QT_TRANSLATE_NOOP("OutlineColumns", "Target"));
    }
    return {};
}

bool isEditable(OutlineColumn column)
{
    return column != OutlineColumn::Words;
}

QString outlineText(const Document& document, OutlineColumn column, const shell::ProjectSession& session)
{
    switch (column) {
    case OutlineColumn::Synopsis:
        return document.synopsis().simplified();
    case OutlineColumn::Status:
        return document.status();
    case OutlineColumn::PointOfView:
        return document.pointOfView();
    case OutlineColumn::StoryDate:
        return document.sceneInstant() ? session.project().calendar().formatInstant(*document.sceneInstant())
                                       : QString();
    case OutlineColumn::Target:
        return document.wordCountTarget() > 0 ? QLocale().toString(document.wordCountTarget()) : QString();
    case OutlineColumn::Title:
    case OutlineColumn::Words:
        break;
    }
    return {};
}

QVariant outlineValue(const Document& document, OutlineColumn column)
{
    switch (column) {
    case OutlineColumn::Title:
        return document.title();
    case OutlineColumn::Synopsis:
        return document.synopsis();
    case OutlineColumn::Status:
        return document.status();
    case OutlineColumn::PointOfView:
        return document.pointOfView();
    case OutlineColumn::Target:
        return document.wordCountTarget();
    case OutlineColumn::StoryDate:
        return document.sceneInstant() ? QVariant(*document.sceneInstant()) : QVariant();
    case OutlineColumn::Words:
        break;
    }
    return {};
}

QStringList knownPointsOfView(const core::project::Project& project)
{
    std::set<QString> names;
    for (const Document* document : core::project::objectsOf<Document>(project))
        names.insert(document->pointOfView());
    names.erase(QString());
    return QStringList(names.begin(), names.end());
}

bool setOutlineValue(
    shell::ProjectSession& session, const core::ContentId& id, OutlineColumn column, const QVariant& value)
{
    auto* const document = session.projectForCommands().findAsForEdit<Document>(id);
    if (!document || document->isLocked())
        return false;
    const QString text = value.toString();
    switch (column) {
    case OutlineColumn::Title: {
        const QString title = text.trimmed();
        return !title.isEmpty() &&
               apply<doc::SetDocumentTitleCommand>(session, *document, document->title(), title);
    }
    case OutlineColumn::Synopsis:
        return apply<doc::SetDocumentSynopsisCommand>(session, *document, document->synopsis(), text);
    case OutlineColumn::Status:
        return apply<doc::SetDocumentStatusCommand>(session, *document, document->status(), text.trimmed());
    case OutlineColumn::PointOfView:
        return apply<doc::SetDocumentPointOfViewCommand>(
            session, *document, document->pointOfView(), text.trimmed());
    case OutlineColumn::Target: {
        bool isNumber = false;
        const int target = value.toInt(&isNumber);
        return isNumber && target >= 0 &&
               apply<doc::SetDocumentTargetCommand>(session, *document, document->wordCountTarget(), target);
    }
    case OutlineColumn::StoryDate:
        return apply<doc::SetDocumentSceneInstantCommand>(
            session, *document, document->sceneInstant(),
            value.isValid() ? std::optional(value.toLongLong()) : std::nullopt);
    case OutlineColumn::Words:
        break;
    }
    return false;
}

} // namespace tw::desktop::manuscript
