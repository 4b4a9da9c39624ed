#include "desktop/manuscript/DocumentEditor.h"

#include "core/document/Document.h"
#include "desktop/manuscript/MarkdownPage.h"
#include "desktop/manuscript/PageStyle.h"
#include "desktop/manuscript/TypingBursts.h"
#include "desktop/manuscript/TypingSettings.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/screenplay/ScreenplayPage.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QImage>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::Document;
using rich::RichPage;
using screenplay::ScreenplayPage;

namespace {

void keepImage(const shell::DeskContext& desk, RichPage& page, const QImage& image)
{
    const QTemporaryDir folder;
    const QString file =
        folder.filePath(QCoreApplication::translate("DocumentEditor", "pasted image") + u".png"_s);
    if (!image.save(file)) {
        desk.navigator.say(QCoreApplication::translate(
            "DocumentEditor", "The pasted image could not be written. Save it as a file and insert that."));
        return;
    }
    const auto imported = desk.session.importAsset(file);
    if (imported)
        page.insertImage(imported.value(), QString());
    else
        desk.navigator.say(imported.message());
}

void openLink(shell::Navigator& navigator, const QString& target)
{
    // A text may come from anybody: it leads to pages and mail, never to files or programs.
    static const QStringList harmlessSchemes{u"http"_s, u"https"_s, u"mailto"_s};
    const QUrl url(target);
    if (!harmlessSchemes.contains(url.scheme()) || !QDesktopServices::openUrl(url))
        navigator.say(
            QCoreApplication::translate("DocumentEditor", "The link “%1” cannot be opened from here.")
                .arg(target));
}

void connectRichPage(const shell::DeskContext& desk, RichPage& page)
{
    QObject::connect(&page, &RichPage::entityActivated, &desk.navigator, &shell::Navigator::open);
    QObject::connect(
        &page, &RichPage::linkActivated, &desk.navigator,
        [&navigator = desk.navigator](const QString& target) { openLink(navigator, target); });
    QObject::connect(&page, &RichPage::imagePasted, &page, [desk, &page](const QImage& image) {
        keepImage(desk, page, image);
    });
}

void followRevision(const shell::ProjectSession& session, const ContentId& documentId, ScreenplayPage& page)
{
    const auto show = [&session, documentId, &page] {
        if (const auto* const document = session.project().findAs<Document>(documentId))
            page.setRevisionBaseline(document->revisionBaseline());
    };
    QObject::connect(
        &session, &shell::ProjectSession::changed, &page,
        [documentId, show](const core::project::ProjectChanges& changes) {
            if (changes.concerns(documentId))
                show();
        });
    show();
}

} // namespace

TextView styledViewOf(const shell::ProjectSession& session, const ContentId& documentId)
{
    const auto* const document = session.project().findAs<Document>(documentId);
    const bool isScreenplay =
        document && document->documentKind() == core::document::DocumentKind::Screenplay;
    return isScreenplay ? TextView::Screenplay : TextView::Rich;
}

DocumentEditor makeDocumentEditor(
    const shell::DeskContext& desk, const ContentId& documentId, TextView view, QWidget* parent)
{
    DocumentEditor made;
    if (view == TextView::Rich) {
        made.rich = new RichPage(desk, documentId, parent);
        made.widget = made.rich;
        made.bursts = &made.rich->bursts();
        connectRichPage(desk, *made.rich);
        applyEditorSettings(made, desk.settings);
        return made;
    }
    if (view == TextView::Screenplay) {
        made.screenplay = new ScreenplayPage(desk.themes, parent);
        made.widget = made.screenplay;
    } else {
        made.widget = new MarkdownPage(desk.themes, parent);
    }
    // Before there is a text that would have to be laid out anew.
    applyEditorSettings(made, desk.settings);
    made.bursts = new TypingBursts(desk.session, documentId, *made.widget);
    if (made.screenplay)
        followRevision(desk.session, documentId, *made.screenplay);
    return made;
}

void applyEditorSettings(const DocumentEditor& editor, const QSettings& settings)
{
    const PageStyle style = pageStyleFrom(settings);
    editor.widget->setPageStyle(editor.screenplay ? screenplay::screenplayStyle(style) : style);
    if (editor.rich) {
        editor.rich->setTypingRules(typingRulesFrom(settings));
        editor.rich->setMentionsShown(settings.value(typingkeys::mentions).toBool());
    }
}

bool isTypewriterScrolling(const QSettings& settings)
{
    return settings.value("editor/typewriterScrolling"_L1).toBool();
}

} // namespace tw::desktop::manuscript
