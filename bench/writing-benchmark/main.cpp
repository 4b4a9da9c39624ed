// What writing costs: opening a chapter, and a key until its letter is on the screen, against a bare text
// edit.
#include "app/persistence/StorageEnvironment.h"
#include "bench/Measurement.h"
#include "bench/writing-benchmark/KeyTimes.h"
#include "bench/writing-benchmark/WrittenTexts.h"
#include "core/document/Document.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/PageStyle.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace tw;
using desktop::manuscript::rich::RichPage;

constexpr qsizetype chapterCharacters = 560'000; // about 100,000 words
constexpr int openings = 9;
constexpr int keys = 300;
constexpr QSize pageSize(1000, 800);
constexpr double openingAim = 2.0;
constexpr double keyAim = 1.5;
constexpr double frameMilliseconds = 16;
constexpr qsizetype largestInAFrame = 240'000;

/** A desk with one document. */
class Desk
{
public:
    Desk()
    {
        session.startNew(u"Bench"_s);
        auto document = std::make_unique<core::document::Document>(
            core::ContentId::create(), core::document::DocumentKind::Prose, u"Chapter"_s);
        id = document->id();
        session.projectForCommands().add(std::move(document));
    }

    void setText(const QString& text)
    {
        session.projectForCommands().findAsForEdit<core::document::Document>(id)->setBody({text, {}});
    }

    QTemporaryDir folder;
    QSettings settings{folder.filePath(u"settings.ini"_s), QSettings::IniFormat};
    desktop::theme::ThemeManager themes{settings};
    desktop::icons::IconSet icons{themes};
    app::persistence::DiskFileSystem files;
    app::persistence::StorageEnvironment environment{files, QDir(folder.filePath(u"data"_s)).path()};
    desktop::shell::ProjectSession session{environment};
    desktop::shell::Navigator navigator;
    desktop::shell::DeskContext context{session, navigator, themes, icons, settings};
    core::ContentId id;
};

std::unique_ptr<QTextEdit> bareEdit(const QString& text)
{
    auto edit = std::make_unique<QTextEdit>();
    edit->setFont(desktop::manuscript::pageFont({}));
    edit->setPlainText(text);
    edit->resize(pageSize);
    edit->show();
    QCoreApplication::processEvents();
    return edit;
}

void compareOpening(Desk& desk, bench::ResultTable& results)
{
    const QString text = bench::writtenText(chapterCharacters);
    desk.setText(text);
    QTextEdit bare;
    std::unique_ptr<RichPage> page;
    results.addTitle(u"A chapter of 100,000 words"_s);
    results.addTimes(
        u"open"_s, u"setPlainText()"_s,
        bench::compare(
            {openings, bench::Counted::Best}, {[&] { bare.setPlainText(text); }, [&] { bare.clear(); }},
            {[&] { page = std::make_unique<RichPage>(desk.context, desk.id, nullptr); },
             [&] { page.reset(); }}),
        openingAim);
}

bool compareKeys(Desk& desk, qsizetype characters, bench::ResultTable& results)
{
    const QString text = bench::writtenText(characters);
    desk.setText(text);
    const auto bare = bareEdit(text);
    RichPage page(desk.context, desk.id, nullptr);
    page.resize(pageSize);
    page.show();
    QCoreApplication::processEvents();
    const auto [pageTimes, bareTimes] = bench::timeKeys(page, *bare, keys);
    results.addTitle(u"Key to glyph, %1 kB"_s.arg(characters / 1000));
    results.addTimes(
        u"median"_s, u"a bare text edit"_s, {pageTimes.quantile(0.5) / 1000, bareTimes.quantile(0.5) / 1000},
        keyAim);
    const double slowest = pageTimes.quantile(0.99);
    QTextStream(stdout) << "  99th percentile " << QString::number(slowest, 'f', 2)
                        << " ms, of a bare text edit " << QString::number(bareTimes.quantile(0.99), 'f', 2)
                        << " ms\n";
    return characters > largestInAFrame || slowest < frameMilliseconds;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    Desk desk;
    bench::ResultTable results;
    compareOpening(desk, results);
    bool isWithinFrames = true;
    for (const qsizetype characters : {24'000, 240'000, 1'000'000})
        isWithinFrames = compareKeys(desk, characters, results) && isWithinFrames;
    return results.areAimsReached() && isWithinFrames ? 0 : 1;
}
