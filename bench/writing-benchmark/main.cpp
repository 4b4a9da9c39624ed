// What writing costs: opening a chapter, and a key until its letter is on the screen, against a bare text
// edit.
#include "bench/Measurement.h"
#include "bench/Random.h"
#include "bench/writing-benchmark/KeyTimes.h"
#include "bench/writing-benchmark/WritingDesk.h"
#include "bench/writing-benchmark/WrittenTexts.h"
#include "desktop/composition/CompositionPage.h"
#include "desktop/composition/SceneSlot.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/manuscript/PageStyle.h"
#include "desktop/manuscript/rich/RichPage.h"

#include <QApplication>
#include <QTextStream>

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace tw;
using desktop::composition::CompositionPage;
using desktop::manuscript::DocumentPage;
using desktop::manuscript::rich::RichPage;

constexpr qsizetype chapterCharacters = 560'000; // about 100,000 words
constexpr int openings = 9;
constexpr QSize pageSize(1000, 800);
constexpr double openingAim = 2.0;
constexpr double keyAim = 1.5;
constexpr double frameMilliseconds = 16;
constexpr qsizetype largestInAFrame = 240'000;
constexpr qsizetype sceneCharacters = 6'000;
constexpr int scenes = 300;
constexpr double continuousAim = 1.5;
constexpr int longestRest = 40;
constexpr quint64 restSeed = 3;

template <class Page>
void show(Page& page)
{
    page.resize(pageSize);
    page.show();
    QCoreApplication::processEvents();
}

/** With the font of the pages: what a letter costs depends on it. */
std::unique_ptr<QTextEdit> bareEdit(const QString& text, const QSettings& settings)
{
    auto edit = std::make_unique<QTextEdit>();
    edit->setFont(desktop::manuscript::pageFont(desktop::manuscript::pageStyleFrom(settings)));
    edit->setPlainText(text);
    show(*edit);
    return edit;
}

void compareOpening(bench::WritingDesk& desk, bench::ResultTable& results)
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

/** Whether hardly any key took longer than a frame. */
bool tellKeys(
    const std::pair<bench::KeyTimes, bench::KeyTimes>& times, qsizetype characters,
    bench::ResultTable& results)
{
    const auto& [page, bare] = times;
    results.addTimes(
        u"median"_s, u"a bare text edit"_s, {page.quantile(0.5) / 1000, bare.quantile(0.5) / 1000}, keyAim);
    const double slowest = page.quantile(0.99);
    QTextStream(stdout) << "  99th percentile " << QString::number(slowest, 'f', 2)
                        << " ms, of a bare text edit " << QString::number(bare.quantile(0.99), 'f', 2)
                        << " ms\n";
    return characters > largestInAFrame || slowest < frameMilliseconds;
}

bool compareKeys(
    bench::WritingDesk& desk, qsizetype characters, bench::Place place, bench::ResultTable& results)
{
    const QString text = bench::writtenText(characters);
    desk.setText(text);
    const auto bare = bareEdit(text, desk.settings);
    RichPage page(desk.context, desk.id, nullptr);
    show(page);
    const QString where = place == bench::Place::End ? u", at the end"_s : QString();
    results.addTitle(u"Key to glyph, %1 kB%2"_s.arg(QString::number(characters / 1000), where));
    return tellKeys(bench::timeKeys(page, *bare, {.place = place}), characters, results);
}

/** Every word is begun while the whole text is being checked. */
bool compareProofreadKeys(bench::WritingDesk& desk, qsizetype characters, bench::ResultTable& results)
{
    const QString text = bench::writtenText(characters);
    desk.setText(text);
    const auto bare = bareEdit(text, desk.settings);
    const auto service = desk.makeProofreadingService();
    DocumentPage page(desk.context, desk.id, nullptr);
    service->attach(page.editor(), desk.id);
    show(page);
    bench::Random random(restSeed);
    const auto checkAnew = [&] {
        auto settings = service->settings();
        settings.skipsAllCapitals = !settings.skipsAllCapitals;
        service->setSettings(settings);
        return static_cast<double>(random.below(longestRest));
    };
    results.addTitle(u"Key to glyph, %1 kB, proofread meanwhile"_s.arg(characters / 1000));
    return tellKeys(bench::timeKeys(page.editor(), *bare, {.beforeWord = checkAnew}), characters, results);
}

/** In a whole manuscript as one text, every document of it open, against the same document alone. */
bool compareContinuousKeys(bench::ResultTable& results)
{
    const QString text = bench::writtenText(sceneCharacters);
    bench::WritingDesk desk;
    bench::WritingDesk alone;
    alone.setText(text);
    desk.setText(text);
    for (int index = 1; index < scenes; ++index) {
        // Half of them before it.
        const core::ContentId id = desk.addDocument(u"Scene"_s, {}, index % 2 == 0 ? -index : index);
        desk.document(id).setBody({text, {}});
    }
    desk.announce();
    const auto service = desk.makeProofreadingService();
    const auto serviceAlone = alone.makeProofreadingService();
    RichPage single(alone.context, alone.id, nullptr);
    serviceAlone->attach(single, alone.id);
    show(single);
    CompositionPage page(desk.context, {}, nullptr);
    QObject::connect(
        &page, &CompositionPage::editorMade, service.get(),
        [&service](desktop::manuscript::BodyEditor* editor, const core::ContentId& id) {
            service->attach(*editor, id);
        });
    show(page);
    desktop::manuscript::BodyEditor* written = nullptr;
    for (auto* const slot : page.slotsInOrder()) {
        auto& editor = slot->wake();
        if (slot->documentId() == desk.id)
            written = &editor;
    }
    QCoreApplication::processEvents();
    page.activateWindow();
    written->setFocus();
    results.addTitle(u"Key to glyph in continuous text, %1 documents of %2 kB open"_s.arg(scenes).arg(
        sceneCharacters / 1000));
    const auto times = bench::timeKeys(*written, single, {});
    results.addTimes(
        u"median"_s, u"the document alone"_s,
        {times.first.quantile(0.5) / 1000, times.second.quantile(0.5) / 1000}, continuousAim);
    QTextStream(stdout) << "  99th percentile " << QString::number(times.first.quantile(0.99), 'f', 2)
                        << " ms, alone " << QString::number(times.second.quantile(0.99), 'f', 2) << " ms\n";
    return times.first.quantile(0.99) < frameMilliseconds;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    bench::WritingDesk desk;
    bench::ResultTable results;
    compareOpening(desk, results);
    bool isWithinFrames = true;
    for (const qsizetype characters : {24'000, 240'000, 1'000'000})
        isWithinFrames = compareKeys(desk, characters, bench::Place::Middle, results) && isWithinFrames;
    isWithinFrames = compareKeys(desk, chapterCharacters, bench::Place::End, results) && isWithinFrames;
    for (const qsizetype characters : {24'000, 240'000})
        isWithinFrames = compareProofreadKeys(desk, characters, results) && isWithinFrames;
    isWithinFrames = compareContinuousKeys(results) && isWithinFrames;
    return results.areAimsReached() && isWithinFrames ? 0 : 1;
}
