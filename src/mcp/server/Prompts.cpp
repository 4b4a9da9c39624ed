#include "mcp/server/Prompts.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;

namespace {

struct Argument
{
    QString name;
    QString description;
    bool isRequired = false;
};

struct Prompt
{
    QString name;
    QString title;
    QString description;
    std::vector<Argument> arguments;
    QString (*text)(const QJsonObject& arguments);
};

QString continuityReview(const QJsonObject& arguments)
{
    const QString scope = arguments.value(u"document").toString();
    const QString what = scope.isEmpty() ? u"this project"_s : u"the document '%1'"_s.arg(scope);
    return u"Review the continuity of %1. Call get_conflicts for what the timeline and the continuity rules "
           u"report, and "
           "get_manuscript_tree and get_document to read the text. Look up every character, place and date "
           "that the text "
           "names with get_entity and get_timeline. Then list each contradiction: quote the passage, say "
           "what it "
           "contradicts and where that stands, and suggest the smallest change that settles it. Say plainly "
           "which points "
           "you are unsure of. Change nothing unless I ask you to."_s.arg(what);
}

QString chapterSummary(const QJsonObject& arguments)
{
    return u"Read the document '%1' with get_document, in pieces if it is long, and summarise it: what "
           u"happens, who is "
           "there and what each of them wants, what the reader learns, and what is left open. Use the names "
           "as they stand "
           "in the text. Finish with a synopsis of at most three sentences. Do not write it into the "
           "document until I "
           "agree; then use update_document with \"synopsis\"."_s.arg(
               arguments.value(u"document").toString());
}

QString nameBrainstorm(const QJsonObject& arguments)
{
    const QString style = arguments.value(u"style").toString();
    const QString wish = style.isEmpty() ? QString() : u" The names should feel like this: %1."_s.arg(style);
    return u"Suggest twelve names for this: %1.%2 First look at how names in this project sound: call "
           "get_project_overview and list_category. Check each suggestion with check_name and drop those "
           "that "
           "are in use or too close to a name that is. Give a line on sound or meaning for each."_s.arg(
               arguments.value(u"subject").toString(), wish);
}

const std::vector<Prompt>& prompts()
{
    static const std::vector<Prompt> all{
        {u"continuity_review"_s,
         u"Continuity review"_s,
         u"Looks for contradictions between the text, the codex and the timeline."_s,
         {{u"document"_s, u"The title of the document to review; the whole project when left out."_s}},
         continuityReview},
        {u"chapter_summary"_s,
         u"Chapter summary"_s,
         u"Summarises one document and drafts its synopsis."_s,
         {{u"document"_s, u"The title of the document."_s, true}},
         chapterSummary},
        {u"name_brainstorm"_s,
         u"Name brainstorm"_s,
         u"Suggests names that fit the project and are not in use."_s,
         {{u"subject"_s, u"Who or what needs a name, such as: a harbour town in the north."_s, true},
          {u"style"_s, u"How the names should feel."_s}},
         nameBrainstorm},
    };
    return all;
}

} // namespace

QJsonArray listPrompts()
{
    QJsonArray list;
    for (const Prompt& prompt : prompts()) {
        QJsonArray arguments;
        for (const Argument& argument : prompt.arguments) {
            arguments.append(QJsonObject{
                {u"name"_s, argument.name},
                {u"description"_s, argument.description},
                {u"required"_s, argument.isRequired}});
        }
        list.append(QJsonObject{
            {u"name"_s, prompt.name},
            {u"title"_s, prompt.title},
            {u"description"_s, prompt.description},
            {u"arguments"_s, arguments}});
    }
    return list;
}

Result<QJsonObject> getPrompt(const QString& name, const QJsonObject& arguments)
{
    const auto prompt = std::ranges::find(prompts(), name, &Prompt::name);
    if (prompt == prompts().end())
        return Failure{u"Unknown prompt: %1"_s.arg(name)};
    for (const Argument& argument : prompt->arguments) {
        if (argument.isRequired && arguments.value(argument.name).toString().trimmed().isEmpty())
            return Failure{u"%1 needs \"%2\"."_s.arg(name, argument.name)};
    }
    const QJsonObject content{{u"type"_s, u"text"_s}, {u"text"_s, prompt->text(arguments)}};
    return QJsonObject{
        {u"description"_s, prompt->description},
        {u"messages"_s, QJsonArray{QJsonObject{{u"role"_s, u"user"_s}, {u"content"_s, content}}}}};
}

} // namespace tw::mcp::server
