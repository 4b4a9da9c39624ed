#include "app/mcp/ChangingToolFixture.h"
#include "app/mcp/ToolFamilies.h"
#include "core/entity/Entity.h"
#include "core/map/Map.h"
#include "core/media/Media.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::entity::Entity;
using core::media::Media;

namespace {

class MediaToolsTest : public ChangingToolFixture
{
protected:
    MediaToolsTest()
        : ChangingToolFixture({registerMapMediaTools})
    {}

    /** A file below the test's folder; the project is in its subfolder "project". */
    void write(const QString& name, qint64 size = 3) const
    {
        const QString path = root.filePath(name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.resize(size));
    }

    [[nodiscard]] QByteArray argumentsFor(const QString& name, const QByteArray& more = {}) const
    {
        return R"({"path":")" + root.filePath(name).toUtf8() + '"' + more + '}';
    }
};

} // namespace

TEST_F(MediaToolsTest, importsAFileAndPutsItIntoAGallery)
{
    Entity& ann = add<Entity>(core::CategoryId(), u"Ann"_s);
    write(u"ann.png"_s);
    const QString label = u"MCP: add media"_s;
    expectChange(
        "add_media", label,
        {argumentsFor(u"ann.png"_s, R"(,"caption":"Portrait","entity":"ann")"),
         u"Imported 'ann.png' as assets/ann.png, in the gallery of 'Ann'."_s});
    EXPECT_TRUE(QFile::exists(folder() + u"/assets/ann.png"_s));
    ASSERT_EQ(ann.gallery().size(), 1U);
    EXPECT_EQ(project().findAs<Media>(ann.gallery()[0])->mediaKind(), u"image");

    write(u"project/sounds/sea.mp3"_s);
    expectChange(
        "add_media", label, {R"({"path":"sounds/sea.mp3"})", u"Imported 'sea.mp3' as assets/sea.mp3."_s});
    expectChange(
        "add_media", label,
        {R"({"path":"assets/ann.png","caption":"Again"})", u"Imported 'ann.png' as assets/ann.png."_s});
    EXPECT_EQ(QDir(folder() + u"/assets"_s).entryList(QDir::Files).size(), 2) << "not copied twice";
    EXPECT_EQ(call("list_media", R"({"kind":"audio"})").text, u"- sea (audio): assets/sea.mp3"_s);
    EXPECT_EQ(call("list_media").text.count(u'\n'), 2);
}

TEST_F(MediaToolsTest, readsNothingItShouldNot)
{
    write(u"ann.png"_s);
    write(u"notes.txt"_s);
    write(u".ssh/key.png"_s);
    write(u".hidden.png"_s);
    write(u"large.png"_s, 20 * 1024 * 1024 + 1);
    ASSERT_TRUE(QFile::link(root.filePath(u".ssh/key.png"_s), root.filePath(u"innocent.png"_s)));
    ASSERT_TRUE(QFile::link(root.filePath(u"notes.txt"_s), root.filePath(u"text.png"_s)));
    add<Media>(u"image"_s, u"assets/x.png"_s).setCaption(u"Taken"_s);
    const auto hidden = [](const QString& path) {
        return u"'%1' is not read: no part of the path may begin with a dot. Copy the file elsewhere first."_s
            .arg(path);
    };
    const auto notImported = [](const QString& path) {
        return u"'%1' is not a file that can be imported; use one of: png, jpg, jpeg, gif, webp, bmp, svg, mp3, ogg, wav, flac, m4a, mp4, webm, mov, mkv, pdf."_s
            .arg(path);
    };
    expectRefused(
        "add_media",
        {{"{}", u"add_media needs \"path\"."_s},
         {R"({"path":7})", u"add_media needs \"path\"."_s},
         {R"({"path":"none.png"})",
          u"There is no file 'none.png'. Relative paths start at the project folder."_s},
         {R"({"path":""})", u"There is no file ''. Relative paths start at the project folder."_s},
         {R"({"path":"../ann.png"})", hidden(u"../ann.png"_s)},
         {argumentsFor(u".hidden.png"_s), hidden(root.filePath(u".hidden.png"_s))},
         {argumentsFor(u".ssh/key.png"_s), hidden(root.filePath(u".ssh/key.png"_s))},
         {argumentsFor(u"innocent.png"_s), hidden(root.filePath(u"innocent.png"_s))},
         {argumentsFor(u"notes.txt"_s), notImported(root.filePath(u"notes.txt"_s))},
         {argumentsFor(u"text.png"_s), notImported(root.filePath(u"text.png"_s))},
         {argumentsFor(u"large.png"_s),
          u"'%1' is larger than 20 MB. Make it smaller first."_s.arg(root.filePath(u"large.png"_s))},
         {argumentsFor(u"ann.png"_s, R"(,"caption":"taken")"),
          u"A media asset titled 'taken' already exists."_s},
         {argumentsFor(u"ann.png"_s, R"(,"kind":"photo")"),
          u"Unknown \"kind\" 'photo'; use image, audio, video, pdf, or other."_s}});
    EXPECT_FALSE(QFile::exists(folder() + u"/assets"_s));
}

TEST_F(MediaToolsTest, galleriesOfOthersStayAsTheyAre)
{
    write(u"ann.png"_s);
    write(u"sea.mp3"_s);
    add<Entity>(core::CategoryId(), u"Ann"_s).setLocked(true);
    add<Entity>(core::CategoryId(), u"Secret"_s).setAiExcluded(true);
    add<Entity>(core::CategoryId(), u"Bert"_s);
    mountLibrary(u"Atlas"_s, [](core::project::Project& library) {
        library.add(std::make_unique<Entity>(core::ContentId::create(), core::CategoryId(), u"Far"_s));
    });
    expectRefused(
        "add_media",
        {{argumentsFor(u"ann.png"_s, R"(,"entity":"Far")"),
          u"'Far' lives in a mounted library; add_media attaches gallery images only to the open project's entities."_s},
         {argumentsFor(u"ann.png"_s, R"(,"entity":"Secret")"),
          u"'Secret' is excluded from AI and cannot be changed."_s},
         {argumentsFor(u"ann.png"_s, R"(,"entity":"Ann")"),
          u"'Ann' is locked. Only the person writing it can unlock it, from the app -- there is no tool for that."_s},
         {argumentsFor(u"ann.png"_s, R"(,"entity":"Nobody")"), u"No entity named 'Nobody' exists."_s},
         {argumentsFor(u"sea.mp3"_s, R"(,"entity":"Bert")"),
          u"Only images go into a gallery, and '%1' is none. Leave \"entity\" out."_s.arg(
              root.filePath(u"sea.mp3"_s))}});
}

TEST_F(MediaToolsTest, captionsAreHowAssetsAreFound)
{
    add<Media>(u"image"_s, u"assets/a.png"_s).setCaption(u"Old"_s);
    add<Media>(u"image"_s, u"assets/b.png"_s).setCaption(u"Taken"_s);
    const Media& nameless = add<Media>(u"scroll"_s, u"assets/c"_s);
    add<Media>(u"image"_s, u"assets/d.png"_s).setAiExcluded(true);
    EXPECT_TRUE(call("list_media")
                    .text.contains(u"(no caption, id %1) (other): assets/c"_s.arg(nameless.id().toString())));
    EXPECT_FALSE(call("list_media").text.contains(u"assets/d.png"));
    EXPECT_EQ(
        call("list_media", R"({"kind":"pdf"})").text,
        u"There are no media assets of the kind pdf in this project."_s);
    const QString label = u"MCP: set media caption"_s;
    expectChange(
        "set_media_caption", label,
        {R"({"caption":"old","new_caption":"New"})", u"Recaptioned media asset 'Old' to 'New'."_s});
    expectChange(
        "set_media_caption", label,
        {R"({"id":")" + nameless.id().toString().toUtf8() + R"(","new_caption":"Scroll"})",
         u"Recaptioned media asset '' to 'Scroll'."_s});
    expectNothingToDo(
        "set_media_caption", {{R"({"caption":"New","new_caption":"New"})",
                               u"Media asset 'New' already matches; nothing changed."_s}});
    expectRefused(
        "set_media_caption",
        {{"{}", u"set_media_caption needs \"caption\" (or \"id\") and \"new_caption\"."_s},
         {R"({"caption":"None","new_caption":"X"})", u"No media asset named 'None' exists."_s},
         {R"({"caption":"New","new_caption":" "})", u"A non-empty name is required."_s},
         {R"({"caption":"New","new_caption":"taken"})",
          u"A media asset titled 'taken' already exists; renaming onto it would leave both unreachable by name."_s}});
}

TEST_F(MediaToolsTest, aMapTakesAnImageOnly)
{
    write(u"coast.jpg"_s);
    write(u"sea.mp3"_s);
    expectChange(
        "create_map", u"MCP: create map"_s,
        {R"({"title":"Coast","image_path":")" + root.filePath(u"coast.jpg"_s).toUtf8() + R"("})",
         u"Created map 'Coast'."_s});
    EXPECT_EQ(objectsOf<core::map::Map>(project())[0]->imageAssetPath(), u"assets/coast.jpg");
    expectRefused(
        "create_map", {{R"({"title":"M","image_path":")" + root.filePath(u"sea.mp3"_s).toUtf8() + R"("})",
                        u"'%1' is not an image."_s.arg(root.filePath(u"sea.mp3"_s))}});
}

} // namespace tw::app::mcp
