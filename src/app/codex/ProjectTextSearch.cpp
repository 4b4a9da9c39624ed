#include "app/codex/ProjectTextSearch.h"

#include "app/codex/BodyFilter.h"
#include "app/codex/ObjectTexts.h"
#include "app/search/DocumentSearch.h"
#include "core/content/ObjectName.h"
#include "core/document/Document.h"

#include <QStringMatcher>

#include <algorithm>

namespace tw::app::codex {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::content::ContentObject;
using core::document::Document;
using core::document::DocumentBody;
using core::project::Project;

namespace {

constexpr qsizetype contextLength = 40;

class Searcher
{
public:
    Searcher(const TextSearch& search, search::TextMatcher matcher)
        : m_search(search)
        , m_matcher(std::move(matcher))
        , m_text(search.text, Qt::CaseInsensitive)
        , m_bodies(search.text, Qt::CaseInsensitive)
    {}

    [[nodiscard]] std::vector<TextHit> run(const Project& project)
    {
        std::vector<const ContentObject*> others;
        for (const auto& [id, object] : project.objects()) {
            if (!isLookedAt(*object))
                continue;
            if (const QString name = core::content::objectName(*object); m_text.indexIn(name) >= 0)
                add(*object, snippetOf(name));
            else
                others.push_back(object.get());
            if (isFull())
                return std::move(m_hits);
        }
        for (const ContentObject* const object : others) {
            if (const auto snippet = snippetIn(*object))
                add(*object, *snippet);
            if (isFull())
                break;
        }
        return std::move(m_hits);
    }

private:
    [[nodiscard]] bool isLookedAt(const ContentObject& object) const
    {
        return !object.isAiExcluded() && (!m_search.kind || *m_search.kind == object.kind()) &&
               !(m_search.isHidden && m_search.isHidden(object));
    }

    [[nodiscard]] bool isFull() const { return std::ssize(m_hits) >= m_search.mostHits; }
    void add(const ContentObject& object, const QString& snippet) { m_hits.push_back({&object, snippet}); }

    [[nodiscard]] QString snippetOf(const QString& text) const
    {
        const qsizetype start = std::max<qsizetype>(m_text.indexIn(text) - contextLength, 0);
        const qsizetype end =
            std::min(m_text.indexIn(text) + m_text.pattern().size() + contextLength, text.size());
        return (start > 0 ? u"…"_s : QString()) + text.sliced(start, end - start).simplified() +
               (end < text.size() ? u"…"_s : QString());
    }

    [[nodiscard]] std::optional<QString> snippetIn(const ContentObject& object) const
    {
        std::optional<QString> snippet;
        if (const auto* const document = core::content::objectCast<Document>(&object)) {
            snippet = snippetInBody(document->body());
            for (const core::document::DocumentVariant& variant : document->variants().list) {
                if (!snippet)
                    snippet = snippetInBody({variant.body, variant.bodyFormat});
            }
        }
        if (!snippet) {
            visitTexts(object, [&](const QString& text) {
                if (m_text.indexIn(text) < 0)
                    return false;
                snippet = snippetOf(text);
                return true;
            });
        }
        return snippet;
    }

    [[nodiscard]] std::optional<QString> snippetInBody(const DocumentBody& body) const
    {
        if (!m_bodies.mayHoldText(body))
            return std::nullopt;
        const auto found = search::findMatches(m_matcher, body, 1);
        if (!found || found.value().empty())
            return std::nullopt;
        const search::TextMatch& match = found.value().front();
        return (match.before + match.found + match.after).simplified();
    }

    const TextSearch& m_search;
    search::TextMatcher m_matcher;
    QStringMatcher m_text;
    BodyFilter m_bodies;
    std::vector<TextHit> m_hits;
};

} // namespace

Result<std::vector<TextHit>> searchTexts(const Project& project, const TextSearch& search)
{
    auto matcher = search::TextMatcher::create({search.text});
    if (!matcher)
        return Failure{matcher.message()};
    return Searcher(search, std::move(matcher).value()).run(project);
}

} // namespace tw::app::codex
