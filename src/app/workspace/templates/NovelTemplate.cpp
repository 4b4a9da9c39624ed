#include "app/workspace/templates/TemplateBuilder.h"

namespace tw::app::workspace::templates {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::ContentId;
using core::document::DocumentKind;

namespace {

struct Chapter
{
    QString title;
    QString synopsis;
};

struct Act
{
    QString title;
    QString synopsis;
    QList<Chapter> chapters;
};

QList<Act> acts()
{
    return {
        {TemplateText::tr("Act One"),
         TemplateText::tr("Who they are, what they want, and what makes it impossible to stay."),
         {{TemplateText::tr("Chapter 1"), TemplateText::tr("The ordinary day, and the crack in it.")},
          {TemplateText::tr("Chapter 2"), TemplateText::tr("What happens that cannot be undone.")},
          {TemplateText::tr("Chapter 3"), TemplateText::tr("The decision to go.")}}},
        {TemplateText::tr("Act Two"),
         TemplateText::tr("It gets harder, and then what they believed turns out to be wrong."),
         {{TemplateText::tr("Chapter 4"), TemplateText::tr("New ground, new people, first costs.")},
          {TemplateText::tr("Chapter 5"), TemplateText::tr("The turn in the middle.")},
          {TemplateText::tr("Chapter 6"), TemplateText::tr("Everything that could hold gives way.")}}},
        {TemplateText::tr("Act Three"),
         TemplateText::tr("What they do with what they know now."),
         {{TemplateText::tr("Chapter 7"), TemplateText::tr("The way back in.")},
          {TemplateText::tr("Chapter 8"), TemplateText::tr("The last confrontation.")},
          {TemplateText::tr("Chapter 9"), TemplateText::tr("The world as it is afterwards.")}}},
    };
}

void addManuscript(TemplateBuilder& builder)
{
    for (const Act& act : acts()) {
        const ContentId part = builder.addDocument({DocumentKind::Prose, act.title, act.synopsis, {}});
        for (const Chapter& chapter : act.chapters) {
            const ContentId id =
                builder.addDocument({DocumentKind::Prose, chapter.title, chapter.synopsis, {}, part});
            builder.addDocument(
                {DocumentKind::Prose, TemplateText::tr("Scene"), {}, {}, id, TemplateText::tr("Idea")});
        }
    }
    const ContentId notes = builder.addDocument({DocumentKind::Note, TemplateText::tr("Notes"), {}, {}});
    builder.addDocument({DocumentKind::Note, TemplateText::tr("Premise"), {}, {}, notes});
    builder.addDocument({DocumentKind::Note, TemplateText::tr("Loose ends"), {}, {}, notes});
}

} // namespace

void fillNovel(TemplateBuilder& builder)
{
    addManuscript(builder);
    const CategoryId places = builder.addCategory(
        TemplateText::tr("Places"), {makeField(u"description"_s, TemplateText::tr("What one sees first")),
                                     makeField(u"history"_s, TemplateText::tr("History"))});
    const CategoryId characters = builder.addCategory(
        TemplateText::tr("Characters"),
        {makeChoice(
             u"role"_s, TemplateText::tr("Part in the story"),
             {TemplateText::tr("Protagonist"), TemplateText::tr("Antagonist"), TemplateText::tr("Supporting"),
              TemplateText::tr("In passing")}),
         makeField(u"want"_s, TemplateText::tr("Wants")), makeField(u"need"_s, TemplateText::tr("Needs")),
         makeField(u"appearance"_s, TemplateText::tr("Appearance")),
         makeField(u"voice"_s, TemplateText::tr("Voice")),
         makeReference(u"home"_s, TemplateText::tr("Home"), places)});
    builder.addCategory(
        TemplateText::tr("Items"), {makeField(u"significance"_s, TemplateText::tr("Why it matters")),
                                    makeReference(u"owner"_s, TemplateText::tr("Owner"), characters),
                                    makeReference(u"place"_s, TemplateText::tr("Where it is"), places)});
}

} // namespace tw::app::workspace::templates
