#include "desktop/proofreading/ProseProblems.h"

#include "core/document/ActiveText.h"
#include "desktop/proofreading/EditorProofreader.h"
#include "desktop/proofreading/ProblemColors.h"
#include "desktop/proofreading/ProseText.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QTextBlock>
#include <QTextEdit>

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

namespace tw::desktop::proofreading {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using core::document::Document;
using problems::Problem;

namespace {

constexpr auto readingRest = 600ms;
/** So many documents are read before the list hears of them. */
constexpr std::size_t documentsAtOnce = 40;
constexpr qsizetype contextBefore = 32;
constexpr qsizetype contextAfter = 48;
constexpr qsizetype longestText = 96;

ProblemKind kindOf(const QString& categoryId)
{
    const auto kind = std::ranges::find(problemKinds(), categoryId, idOf);
    return kind == problemKinds().end() ? ProblemKind::Spelling : *kind;
}

/** The finding's words with a few around them, from word to word. */
Problem describe(const ProseFinding& finding, QStringView paragraph)
{
    qsizetype from = std::max<qsizetype>(0, finding.start - contextBefore);
    while (from > 0 && from < finding.start && !paragraph[from - 1].isSpace())
        ++from;
    const qsizetype shownEnd = finding.start + std::min(finding.length, longestText);
    qsizetype to = std::min(paragraph.size(), shownEnd + contextAfter);
    while (to < paragraph.size() && to > shownEnd && !paragraph[to].isSpace())
        --to;
    const QString before = from > 0 ? u"…"_s : QString();
    const QString after = to < paragraph.size() ? u"…"_s : QString();
    Problem problem;
    problem.categoryId = idOf(finding.kind);
    problem.message = finding.message;
    problem.text = paragraph.sliced(finding.start, finding.length).toString();
    problem.context = before + paragraph.sliced(from, to - from).toString() + after;
    return problem;
}

/** One document to read: what is taken along to the other thread, and what comes back. */
struct DocumentReading
{
    core::ContentId id;
    core::document::DocumentBody body;
    std::shared_ptr<const ProseCheck> check;
    IgnoredFindings ignored;
    std::vector<Problem> problems = {};

    void run()
    {
        std::map<std::pair<ProblemKind, QString>, int> ordinals;
        for (const QString& paragraph : paragraphsOf(body)) {
            auto findings = check->findings(paragraph);
            ignored.removeFrom(findings, paragraph);
            for (const ProseFinding& finding : findings) {
                problems.push_back(describe(finding, paragraph));
                problems.back().ordinal = ordinals[{finding.kind, problems.back().text}]++;
            }
        }
    }
};

} // namespace

struct ProseProblems::Reading
{
    std::vector<DocumentReading> documents;
};

ProseProblems::ProseProblems(const shell::DeskContext& desk, ProofreadingService& service, QObject* parent)
    : ProblemSource(parent)
    , m_desk(desk)
    , m_service(service)
{
    m_pool.setMaxThreadCount(1);
    m_rest.setSingleShot(true);
    m_rest.setInterval(readingRest);
    connect(&m_rest, &QTimer::timeout, this, &ProseProblems::readNext);
    connect(&desk.session, &shell::ProjectSession::changed, this, &ProseProblems::followChanges);
    connect(&service, &ProofreadingService::checksChanged, this, &ProseProblems::forgetAll);
    connect(&service, &ProofreadingService::ignoredChanged, this, [this](const core::ContentId& document) {
        m_stale.insert(document);
        readNext();
    });
}

ProseProblems::~ProseProblems()
{
    m_isEnding = true;
    m_pool.waitForDone();
}

std::vector<problems::ProblemCategory> ProseProblems::categories() const
{
    std::vector<problems::ProblemCategory> categories;
    for (const ProblemKind kind : problemKinds())
        categories.push_back({idOf(kind), titleOf(kind)});
    return categories;
}

QColor ProseProblems::colorOf(const QString& categoryId) const
{
    return problemColor(m_desk.themes.theme(), kindOf(categoryId));
}

void ProseProblems::setObjects(const std::vector<core::ContentId>& objects)
{
    m_objects = objects;
    readNext();
}

const std::vector<Problem>& ProseProblems::problemsOf(const core::ContentId& object) const
{
    static const std::vector<Problem> none;
    const auto known = m_problems.find(object);
    return known == m_problems.end() ? none : known->second;
}

void ProseProblems::followChanges(const core::project::ProjectChanges& changes)
{
    if (changes.isEverything) {
        m_isOutdated = m_isReading;
        m_problems.clear();
        m_stale.clear();
        return;
    }
    for (const core::ContentId& id : changes.removed)
        m_problems.erase(id);
    m_stale.insert(changes.changed.begin(), changes.changed.end());
    m_rest.start();
}

void ProseProblems::forgetAll()
{
    m_isOutdated = m_isReading;
    for (const auto& [id, problems] : m_problems)
        m_stale.insert(id);
    m_rest.start();
}

void ProseProblems::readNext()
{
    if (m_isReading)
        return;
    auto reading = std::make_shared<Reading>();
    for (const core::ContentId& id : m_objects) {
        if (m_problems.contains(id) && !m_stale.contains(id))
            continue;
        const auto* const document = m_desk.session.project().findAs<Document>(id);
        if (!document || reading->documents.size() == documentsAtOnce)
            continue;
        m_stale.erase(id);
        reading->documents.push_back(
            {id, core::document::activeText(*document), m_service.check(id, CheckScope::Everything),
             m_service.ignored(id)});
    }
    if (reading->documents.empty())
        return;
    m_isReading = true;
    emit busyChanged(true);
    m_pool.start([this, reading] {
        for (DocumentReading& document : reading->documents) {
            if (!m_isEnding)
                document.run();
        }
        QMetaObject::invokeMethod(
            this, [this, reading] { finish(*reading); }, Qt::QueuedConnection);
    });
}

void ProseProblems::finish(Reading& reading)
{
    m_isReading = false;
    const bool isOutdated = std::exchange(m_isOutdated, false);
    std::vector<core::ContentId> changed;
    for (DocumentReading& document : reading.documents) {
        // Another project may be open by now.
        if (!m_desk.session.project().contains(document.id))
            continue;
        if (isOutdated)
            m_stale.insert(document.id);
        auto& known = m_problems[document.id];
        if (known == document.problems)
            continue;
        known = std::move(document.problems);
        changed.push_back(document.id);
    }
    if (!changed.empty())
        emit problemsChanged(changed);
    readNext();
    if (!m_isReading)
        emit busyChanged(false);
}

void ProseProblems::finishNow()
{
    readNext();
    while (m_isReading) {
        m_pool.waitForDone();
        QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    }
}

void ProseProblems::withPlace(const core::ContentId& object, const Problem& problem, const PlaceUse& use)
{
    m_desk.navigator.open(object);
    EditorProofreader* const proofreader = m_service.proofreaderOf(object);
    if (!proofreader)
        return;
    const auto check = m_service.check(object, CheckScope::Everything);
    std::optional<EditorProofreader::Place> place;
    int ordinal = 0;
    for (QTextBlock block = proofreader->editor().document()->begin(); block.isValid();
         block = block.next()) {
        const QString paragraph = proseOf(block);
        // Most paragraphs need no look by the rules.
        if (ordinal > problem.ordinal || !paragraph.contains(problem.text))
            continue;
        for (ProseFinding& finding : check->findings(paragraph)) {
            const bool isSame = idOf(finding.kind) == problem.categoryId &&
                                QStringView(paragraph).sliced(finding.start, finding.length) == problem.text;
            if (isSame && ordinal++ == problem.ordinal)
                place = {block.blockNumber(), std::move(finding)};
        }
    }
    if (place)
        use(*proofreader, *place);
    else
        m_desk.navigator.say(tr("“%1” is no longer in the text.").arg(problem.text.left(longestText)));
}

void ProseProblems::show(const core::ContentId& object, const Problem& problem)
{
    withPlace(object, problem, [](EditorProofreader& proofreader, const EditorProofreader::Place& place) {
        proofreader.show(place);
    });
}

QStringList ProseProblems::suggestions(const core::ContentId& object, const Problem& problem)
{
    // The words alone tell the same as their paragraph; a rule finds them again.
    const auto check = m_service.check(object, CheckScope::Everything);
    for (const ProseFinding& finding : check->findings(problem.text)) {
        if (finding.length == problem.text.size() && idOf(finding.kind) == problem.categoryId)
            return check->suggestions(finding, problem.text);
    }
    return {};
}

void ProseProblems::replace(const core::ContentId& object, const Problem& problem, const QString& suggestion)
{
    withPlace(object, problem, [&](EditorProofreader& proofreader, const EditorProofreader::Place& place) {
        proofreader.replace(place, suggestion);
        proofreader.editor().ensureCursorVisible();
    });
}

void ProseProblems::ignore(const core::ContentId& object, const Problem& problem)
{
    m_service.ignore(object, kindOf(problem.categoryId), problem.text);
}

bool ProseProblems::hasIgnored(const core::ContentId& object)
{
    return !m_service.ignored(object).isEmpty();
}

void ProseProblems::restoreIgnored(const core::ContentId& object)
{
    m_service.restoreIgnored(object);
}

} // namespace tw::desktop::proofreading
