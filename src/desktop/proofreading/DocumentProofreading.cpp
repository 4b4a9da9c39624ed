#include "desktop/proofreading/DocumentProofreading.h"

#include "core/writing/WritingCommands.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>
#include <QSettings>

#include <algorithm>

namespace tw::desktop::proofreading {

using namespace Qt::Literals::StringLiterals;
using Records = std::vector<core::writing::DocumentProofreading>;
using Record = core::writing::DocumentProofreading;
using core::ContentId;
using core::project::Project;

namespace {

constexpr qsizetype mostIgnored = 10'000;
/** Long sentences are told by how they begin. */
constexpr qsizetype longestKey = 120;

const QString settingsGroup = u"proofreading"_s;
const QString languagesGroup = u"languages/"_s;
const QString ignoredGroup = u"ignored/"_s;

QString keyOf(ProblemKind kind, QStringView text)
{
    return idOf(kind) + u' ' + text.first(std::min(text.size(), longestKey)).toString();
}

void applyRecords(shell::ProjectSession& session, Records records, const QString& label)
{
    if (records == session.project().proofreading())
        return;
    const auto step = session.macro(label);
    session.apply(std::make_unique<core::writing::SetProofreadingCommand>(
        session.projectForCommands(), std::move(records)));
}

template <class Change>
void changeRecord(
    shell::ProjectSession& session, const ContentId& document, const QString& label, Change change)
{
    const Project& project = session.project();
    Records records = project.proofreading();
    auto record = std::ranges::find(records, document, &Record::documentId);
    if (record == records.end())
        record = records.insert(records.end(), Record{document, {}, {}});
    change(*record);
    // Documents that are gone come back with the step that took them, and so do their records.
    std::erase_if(records, [&project](const Record& each) {
        return each.isEmpty() || !project.contains(each.documentId);
    });
    applyRecords(session, std::move(records), label);
}

/** What the settings have of documents of the project. */
Records recordsInSettings(const Project& project, const QSettings& settings)
{
    Records records;
    const auto idsBelow = [&settings](const QString& group) {
        QStringList ids;
        for (const QString& key : settings.allKeys()) {
            if (key.startsWith(settingsGroup + u'/' + group))
                ids.append(key.section(u'/', -1));
        }
        return ids;
    };
    QStringList ids = idsBelow(languagesGroup) + idsBelow(ignoredGroup);
    ids.removeDuplicates();
    for (const QString& id : ids) {
        const Record record{
            ContentId::fromString(id),
            settings.value(settingsGroup + u'/' + languagesGroup + id).toStringList(),
            settings.value(settingsGroup + u'/' + ignoredGroup + id).toStringList()};
        if (project.contains(record.documentId))
            records.push_back(record);
    }
    return records;
}

} // namespace

IgnoredFindings::IgnoredFindings(const QStringList& keys)
    : m_keys(keys.begin(), keys.end())
{}

bool IgnoredFindings::contains(ProblemKind kind, QStringView text) const
{
    return !m_keys.isEmpty() && m_keys.contains(keyOf(kind, text));
}

void IgnoredFindings::removeFrom(std::vector<ProseFinding>& findings, QStringView paragraph) const
{
    if (m_keys.isEmpty())
        return;
    std::erase_if(findings, [&](const ProseFinding& finding) {
        return contains(finding.kind, paragraph.sliced(finding.start, finding.length));
    });
}

Record documentProofreading(const Project& project, const ContentId& document)
{
    const auto record = std::ranges::find(project.proofreading(), document, &Record::documentId);
    return record == project.proofreading().end() ? Record{document, {}, {}} : *record;
}

void setDocumentLanguages(
    shell::ProjectSession& session, const ContentId& document, const QStringList& languages)
{
    changeRecord(
        session, document, QCoreApplication::translate("UndoCommand", "Set language of document"),
        [&languages](Record& record) { record.languages = languages; });
}

void ignoreFinding(
    shell::ProjectSession& session, const ContentId& document, ProblemKind kind, QStringView text)
{
    changeRecord(
        session, document, QCoreApplication::translate("UndoCommand", "Ignore finding"),
        [key = keyOf(kind, text)](Record& record) {
            record.ignored.removeAll(key);
            record.ignored.append(key);
            record.ignored.remove(0, std::max<qsizetype>(0, record.ignored.size() - mostIgnored));
        });
}

void reportIgnoredFindings(shell::ProjectSession& session, const ContentId& document)
{
    changeRecord(
        session, document, QCoreApplication::translate("UndoCommand", "Report ignored findings"),
        [](Record& record) { record.ignored.clear(); });
}

std::vector<ContentId> adoptProofreadingFromSettings(
    shell::ProjectSession& session, const QSettings& settings)
{
    Records records = session.project().proofreading();
    std::vector<ContentId> documents;
    for (const Record& old : recordsInSettings(session.project(), settings)) {
        documents.push_back(old.documentId);
        if (!old.isEmpty() && documentProofreading(session.project(), old.documentId).isEmpty())
            records.push_back(old);
    }
    applyRecords(
        session, std::move(records),
        QCoreApplication::translate("UndoCommand", "Take proofreading choices into the project"));
    return documents;
}

void forgetProofreadingInSettings(QSettings& settings, const std::vector<ContentId>& documents)
{
    for (const ContentId& document : documents) {
        settings.remove(settingsGroup + u'/' + languagesGroup + document.toString());
        settings.remove(settingsGroup + u'/' + ignoredGroup + document.toString());
    }
}

} // namespace tw::desktop::proofreading
