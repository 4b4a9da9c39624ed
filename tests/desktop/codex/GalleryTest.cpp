#include "desktop/codex/GalleryEdits.h"

#include "core/media/Media.h"
#include "desktop/codex/CodexFixture.h"
#include "desktop/codex/GalleryPicture.h"
#include "desktop/codex/GallerySection.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::media::Media;

namespace {

class GalleryTest : public CodexFixture
{
protected:
    GalleryTest()
    {
        EXPECT_TRUE(desk.session.saveAs(folder.filePath(u"project"_s)));
        for (const QString& name : {u"one.png"_s, u"two.png"_s}) {
            QImage image(4, 3, QImage::Format_RGB32);
            image.fill(Qt::darkCyan);
            EXPECT_TRUE(image.save(folder.filePath(name)));
        }
        QFile text(folder.filePath(u"notes.txt"_s));
        EXPECT_TRUE(text.open(QIODevice::WriteOnly) && text.write("no picture") > 0);
    }

    /** The captions of the gallery, in order. */
    QStringList gallery()
    {
        QStringList captions;
        for (const core::ContentId& id : entity(annis).gallery())
            captions.append(desk.session.project().findAs<Media>(id)->caption());
        return captions;
    }

    QStringList files(const QStringList& names) const
    {
        QStringList paths;
        for (const QString& name : names)
            paths.append(folder.filePath(name));
        return paths;
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(GalleryTest, addsPicturesInOneStepAndNamesWhatIsNone)
{
    const auto added = addToGallery(desk.session, annis, files({u"one.png"_s, u"notes.txt"_s, u"two.png"_s}));
    ASSERT_FALSE(added);
    EXPECT_TRUE(added.message().contains(u"notes.txt"_s)) << added.message().toStdString();
    EXPECT_EQ(gallery(), (QStringList{u"one"_s, u"two"_s}));
    const auto* const media = desk.session.project().findAs<Media>(entity(annis).gallery().front());
    EXPECT_TRUE(QFile::exists(folder.filePath(u"project/"_s + media->assetPath())));
    EXPECT_EQ(desk.session.undoText(), u"Add pictures"_s);
    desk.session.undo();
    EXPECT_TRUE(gallery().isEmpty());
    EXPECT_FALSE(desk.session.canUndo());

    EXPECT_FALSE(addToGallery(desk.session, annis, files({u"missing.png"_s})));
    EXPECT_FALSE(desk.session.canUndo()) << "nothing happened";
}

TEST_F(GalleryTest, movesAndRemovesFromThePage)
{
    GallerySection section(desk.context, annis, nullptr);
    section.show();
    ASSERT_TRUE(addToGallery(desk.session, annis, files({u"one.png"_s, u"two.png"_s})));
    moveInGallery(desk.session, annis, entity(annis).gallery().back(), GalleryMove::Earlier);
    EXPECT_EQ(gallery(), (QStringList{u"two"_s, u"one"_s}));
    const auto before = desk.session.undoText();
    moveInGallery(desk.session, annis, entity(annis).gallery().front(), GalleryMove::Earlier);
    EXPECT_EQ(gallery(), (QStringList{u"two"_s, u"one"_s})) << "it is the first already";
    EXPECT_EQ(desk.session.undoText(), before);

    entity(annis).setLocked(true);
    EXPECT_TRUE(addToGallery(desk.session, annis, files({u"three.png"_s})));
    moveInGallery(desk.session, annis, entity(annis).gallery().back(), GalleryMove::Earlier);
    removeFromGallery(desk.session, annis, entity(annis).gallery().front());
    EXPECT_EQ(gallery(), (QStringList{u"two"_s, u"one"_s})) << "the entity is locked";
    entity(annis).setLocked(false);

    section.showEntity(entity(annis));
    auto pictures = section.findChildren<GalleryPicture*>();
    ASSERT_EQ(pictures.size(), 2);
    section.setReadOnly(true);
    QTest::keyClick(pictures.first(), Qt::Key_Delete);
    EXPECT_EQ(gallery().size(), 2) << "the entity is locked";
    section.setReadOnly(false);
    QTest::keyClick(pictures.first(), Qt::Key_Delete);
    EXPECT_EQ(gallery(), QStringList{u"one"_s});
    EXPECT_EQ(desk.session.project().objectsOfKind(Media::staticKind).size(), 2U) << "the picture stays";
}

} // namespace tw::desktop::codex
