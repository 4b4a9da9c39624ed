#include "core/document/markup/Inline.h"

#include "core/document/markup/CharacterSet.h"
#include "core/document/markup/Characters.h"
#include "core/document/markup/InlinePieces.h"

#include <algorithm>

namespace tw::core::document::markup {

using namespace Qt::Literals::StringLiterals;

namespace {

/** What can make a text more than plain: a closing bracket and "!" are nothing without an opening bracket. */
constexpr CharacterSet stylingMarks(u"\\`*_~\n\r&<[");

bool isBreak(const Run& run)
{
    return run.kind == RunKind::SoftBreak || run.kind == RunKind::HardBreak;
}

bool isPlainText(const Run& run)
{
    return run.kind == RunKind::Text && !run.style.code;
}

Run runOf(const InlinePieces& pieces, InlinePiece piece)
{
    Run run{piece.kind, std::move(piece.text), std::move(piece.image.target), {}};
    if (isBreak(run))
        return run;
    run.style.bold = piece.isBold;
    run.style.italic = piece.isItalic;
    run.style.strikethrough = piece.isStruck;
    run.style.code = piece.isCode;
    if (piece.link >= 0) {
        const LinkTarget& link = pieces.links[static_cast<std::size_t>(piece.link)];
        run.style.link = link.target;
        run.style.linkTitle = link.title;
    } else {
        run.style.linkTitle = std::move(piece.image.title);
    }
    if (piece.attributes >= 0 && run.kind == RunKind::Text)
        run.style.attributes = pieces.attributes[static_cast<std::size_t>(piece.attributes)];
    return run;
}

void append(std::vector<Run>& runs, Run run)
{
    if (run.kind == RunKind::Text && run.text.isEmpty())
        return;
    // Line ends before any text say nothing.
    if (run.kind == RunKind::SoftBreak && (runs.empty() || isBreak(runs.back())))
        return;
    if (run.kind == RunKind::Text && !runs.empty() && runs.back().kind == RunKind::Text &&
        runs.back().style == run.style)
        runs.back().text += run.text;
    else
        runs.push_back(std::move(run));
}

void dropBreaksAtEnd(std::vector<Run>& runs)
{
    while (!runs.empty() && isBreak(runs.back()))
        runs.pop_back();
}

QString withoutLineEnds(QString text)
{
    return text.replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ').replace(u'\r', u' ');
}

QString withoutControls(QString text)
{
    return text.removeIf([](QChar character) { return character.unicode() < u' ' || character == u'\x7f'; });
}

/** The run with no more than its kind can say. */
Run plainForm(Run run)
{
    if (isBreak(run))
        return {run.kind, {}, {}, {}};
    RunStyle& style = run.style;
    style.link = withoutControls(std::move(style.link));
    run.target = run.kind == RunKind::Image ? withoutControls(std::move(run.target)) : QString();
    style.linkTitle = withoutLineEnds(std::move(style.linkTitle));
    run.text = withoutLineEnds(std::move(run.text));
    if (run.kind == RunKind::Image && run.target.isEmpty())
        run.kind = RunKind::Text;
    if (style.link.isEmpty() && run.kind != RunKind::Image)
        style.linkTitle.clear();
    if (run.kind == RunKind::FootnoteReference) {
        run.text.remove(u']');
        if (run.text.isEmpty())
            return {};
    }
    // The text of a group, which is also what keeps marks apart, ends at the first bracket: what cannot be
    // written without one is in no style of its own.
    const bool hasBracket = run.kind != RunKind::Text || (style.code && run.text.contains(u']'));
    if (hasBracket)
        style = {
            .code = style.code && run.kind == RunKind::Text,
            .link = style.link,
            .linkTitle = style.linkTitle};
    return run;
}

/** Drops blanks beside breaks. */
void trimLines(std::vector<Run>& runs)
{
    std::vector<Run> lines;
    const auto trimEnd = [&lines] {
        while (!lines.empty() && isPlainText(lines.back())) {
            QString& text = lines.back().text;
            while (!text.isEmpty() && isBlank(text.back()))
                text.chop(1);
            if (!text.isEmpty())
                return;
            lines.pop_back();
        }
    };
    for (Run& run : runs) {
        if (isBreak(run))
            trimEnd();
        else if (isPlainText(run) && !lines.empty() && isBreak(lines.back()))
            run.text = run.text.sliced(skip(run.text, 0, isBlank));
        append(lines, std::move(run));
    }
    runs = std::move(lines);
}

/** Takes a style away from the white space at the edges of every stretch that has it. */
void trimStyle(std::vector<Run>& runs, bool RunStyle::*style)
{
    std::vector<Run> result;
    const auto trimEnd = [&result, style] {
        std::vector<Run> spaces;
        while (!result.empty() && isPlainText(result.back()) && result.back().style.*style) {
            const QString text = result.back().text;
            qsizetype end = text.size();
            while (end > 0 && text[end - 1].isSpace())
                --end;
            if (end == text.size())
                break;
            Run space = result.back();
            space.text = text.sliced(end);
            space.style.*style = false;
            spaces.push_back(std::move(space));
            if (end > 0) {
                result.back().text.truncate(end);
                break;
            }
            result.pop_back();
        }
        for (auto space = spaces.rbegin(); space != spaces.rend(); ++space)
            append(result, std::move(*space));
    };
    for (Run& run : runs) {
        const bool isStyled = run.style.*style;
        const bool wasStyled = !result.empty() && result.back().style.*style;
        if (!isStyled && wasStyled)
            trimEnd();
        if (isStyled && !wasStyled && isPlainText(run)) {
            const qsizetype start = skip(run.text, 0, [](QChar character) { return character.isSpace(); });
            Run space = run;
            space.text.truncate(start);
            space.style.*style = false;
            append(result, std::move(space));
            run.text = run.text.sliced(start);
        }
        append(result, std::move(run));
    }
    trimEnd();
    runs = std::move(result);
}

} // namespace

bool isPlainInline(QStringView text)
{
    return stylingMarks.findIn(text) == text.size();
}

std::vector<Run> parseInline(QStringView text)
{
    if (isPlainInline(text)) {
        std::vector<Run> plain;
        if (!text.isEmpty())
            plain.emplace_back().text = text.toString();
        return plain;
    }
    InlinePieces pieces = takeApart(text);
    std::vector<Run> runs;
    for (InlinePiece& piece : pieces.list)
        append(runs, runOf(pieces, std::move(piece)));
    dropBreaksAtEnd(runs);
    return runs;
}

std::vector<Run> canonicalRuns(std::span<const Run> runs)
{
    std::vector<Run> result;
    for (const Run& run : runs)
        append(result, plainForm(run));
    trimLines(result);
    for (bool RunStyle::*const style : {&RunStyle::bold, &RunStyle::italic, &RunStyle::strikethrough})
        trimStyle(result, style);
    trimLines(result);
    dropBreaksAtEnd(result);
    return result;
}

} // namespace tw::core::document::markup
