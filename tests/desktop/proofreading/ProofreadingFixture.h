// A desk with a small English dictionary of its own, and a document in an editor that is proofread.
#pragma once

#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/proofreading/EditorProofreader.h"
#include "desktop/proofreading/ProofreadingService.h"
#include "desktop/support/TestDesk.h"

#include <QFile>

#include <gtest/gtest.h>

namespace tw::test {

class ProofreadingFixture : public testing::Test
{
protected:
    ProofreadingFixture()
    {
        write(QStringLiteral("dictionaries/en_US.aff"), "SET UTF-8\nTRY esian\n");
        write(
            QStringLiteral("dictionaries/en_US.dic"),
            "14\nthe\nship\nsailed\nquickly\nwas\ntaken\nat\ndawn\nin\norder\nto\nwin\nand\nthey\n");
        desktop::proofreading::ProofreadingSettings settings;
        settings.languages = {QStringLiteral("en_US")};
        settings.marksStyle = true;
        storeProofreadingSettings(desk.settings, settings);
        service = std::make_unique<desktop::proofreading::ProofreadingService>(
            desk.context,
            desktop::proofreading::SpellingPlaces{
                desk.folder.filePath(QStringLiteral("userdictionary.txt")),
                {desk.folder.filePath(QStringLiteral("dictionaries"))}},
            nullptr);
    }

    ~ProofreadingFixture() override
    {
        page.reset();
        service.reset();
    }

    void write(const QString& name, const QByteArray& bytes)
    {
        desk.folder.mkpath(QStringLiteral("dictionaries"));
        QFile file(desk.folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /** Adds a document and opens it in an editor. */
    void open(const QString& body)
    {
        id = desk.addDocument(QStringLiteral("Chapter"), {}, 0);
        desk.document(id).setBody({body, {}});
        desk.announce();
        page = std::make_unique<desktop::manuscript::DocumentPage>(desk.context, id, nullptr);
        page->resize(900, 600);
        page->show();
        service->attach(page->editor(), id);
        readDictionaries();
    }

    void readDictionaries()
    {
        // Asking is what has them read.
        [[maybe_unused]] const auto check = service->check(id, desktop::proofreading::CheckScope::Everything);
        service->finishReading();
    }

    desktop::proofreading::EditorProofreader& proofreader() { return *service->proofreaderOf(id); }

    /** What is marked, paragraph by paragraph, as "kind: text". */
    QStringList marked()
    {
        proofreader().finishNow();
        QStringList found;
        const QTextDocument& document = *page->editor().document();
        for (int block = 0; block < document.blockCount(); ++block) {
            for (const auto& finding : proofreader().findings().of(block))
                found.append(
                    idOf(finding.kind) + QStringLiteral(": ") + proofreader().textOf({block, finding}));
        }
        return found;
    }

    const QString& body() { return desk.document(id).body().text; }

    TestDesk desk;
    core::ContentId id;
    std::unique_ptr<desktop::proofreading::ProofreadingService> service;
    std::unique_ptr<desktop::manuscript::DocumentPage> page;
};

} // namespace tw::test
