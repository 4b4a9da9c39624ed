#include "app/workspace/templates/TemplateBuilder.h"

namespace tw::app::workspace::templates {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::DocumentKind;

namespace {

struct Scene
{
    QString title;
    QString synopsis;
};

struct Act
{
    QString title;
    QList<Scene> scenes;
};

QList<Act> acts()
{
    return {
        {TemplateText::tr("Act One"),
         {{TemplateText::tr("Opening image"),
           TemplateText::tr("The world in one picture, before it changes.")},
          {TemplateText::tr("Setup"), TemplateText::tr("Who it is about, and what is missing.")},
          {TemplateText::tr("Inciting incident"), TemplateText::tr("What sets it in motion.")}}},
        {TemplateText::tr("Act Two"),
         {{TemplateText::tr("Into the new world"),
           TemplateText::tr("The first step that cannot be taken back.")},
          {TemplateText::tr("Midpoint"), TemplateText::tr("What was sought is found, or turns out false.")},
          {TemplateText::tr("All is lost"), TemplateText::tr("The lowest point.")}}},
        {TemplateText::tr("Act Three"),
         {{TemplateText::tr("Climax"), TemplateText::tr("The choice that decides it.")},
          {TemplateText::tr("Final image"), TemplateText::tr("The same world, seen anew.")}}},
    };
}

} // namespace

void fillScreenplay(TemplateBuilder& builder)
{
    for (const Act& act : acts()) {
        const ContentId part = builder.addDocument({DocumentKind::Screenplay, act.title, {}, {}});
        for (const Scene& scene : act.scenes) {
            // The form of a scene heading is the same in every language.
            builder.addDocument(
                {DocumentKind::Screenplay, scene.title, scene.synopsis, u"INT. "_s, part,
                 TemplateText::tr("Idea")});
        }
    }
    const ContentId notes =
        builder.addDocument({DocumentKind::Note, TemplateText::tr("Development"), {}, {}});
    builder.addDocument(
        {DocumentKind::Note,
         TemplateText::tr("Logline"),
         TemplateText::tr("The film in one sentence."),
         {},
         notes});
    builder.addDocument(
        {DocumentKind::Note,
         TemplateText::tr("Treatment"),
         TemplateText::tr("The film told in prose."),
         {},
         notes});

    builder.addCategory(
        TemplateText::tr("Characters"),
        {makeField(u"age"_s, TemplateText::tr("Age")), makeField(u"want"_s, TemplateText::tr("Wants")),
         makeField(u"need"_s, TemplateText::tr("Needs")), makeField(u"voice"_s, TemplateText::tr("Voice"))});
    builder.addCategory(
        TemplateText::tr("Locations"),
        {makeChoice(
             u"setting"_s, TemplateText::tr("Setting"),
             {TemplateText::tr("Interior"), TemplateText::tr("Exterior"), TemplateText::tr("Both")}),
         makeField(u"look"_s, TemplateText::tr("Look")), makeField(u"sound"_s, TemplateText::tr("Sound"))});
    builder.addCategory(
        TemplateText::tr("Props"), {makeField(u"use"_s, TemplateText::tr("What it is used for"))});
}

} // namespace tw::app::workspace::templates
