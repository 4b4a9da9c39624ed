#include "desktop/shell/Translations.h"

#include "desktop/inspector/InspectorPanel.h"
#include "desktop/shell/DialogSelfTest.h"
#include "desktop/shell/MainWindow.h"
#include "desktop/support/TestDesk.h"
#include "support/TestFiles.h"

#include <QAction>
#include <QFile>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Text
{
    QString source;
    /** The forms by number, or the one translation; empty while nobody translated it. */
    QStringList translations;
};

QList<Text> textsOf(const QString& catalogue)
{
    QFile file(catalogue);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&file);
    QList<Text> texts;
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == "source"_L1)
            texts.append({reader.readElementText(), {}});
        else if (reader.name() == "numerusform"_L1)
            texts.last().translations.append(reader.readElementText());
        else if (reader.name() == "translation"_L1 && !reader.attributes().hasAttribute("type"_L1)) {
            const QString text = reader.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
            if (!text.isEmpty())
                texts.last().translations.append(text);
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return texts;
}

/** The places for values in a text, sorted: "%1", "%n", "%Ln". */
QStringList placesIn(const QString& text)
{
    static const QRegularExpression place(u"%L?([0-9]+|n)"_s);
    QStringList places;
    for (const QRegularExpressionMatch& match : place.globalMatch(text))
        places.append(match.captured());
    places.sort();
    return places;
}

QString plain(QString text)
{
    return text.remove(u'&');
}

QMenu* menuNamed(const QMenuBar& bar, const QString& title)
{
    for (QAction* const action : bar.actions()) {
        if (plain(action->text()) == title)
            return action->menu();
    }
    return nullptr;
}

/** Entries of one bar or menu, or of a menu below, that share their letter with another entry beside them. */
QStringList entriesWithSharedLetters(const QList<QAction*>& actions)
{
    QStringList found;
    std::map<QString, QString> entries;
    for (const QAction* const action : actions) {
        if (action->menu())
            found += entriesWithSharedLetters(action->menu()->actions());
        const QString letter = QKeySequence::mnemonic(action->text()).toString();
        if (letter.isEmpty())
            continue;
        const auto [first, isNew] = entries.emplace(letter, action->text());
        if (!isNew)
            found.append(u"%1 and %2"_s.arg(first->second, action->text()));
    }
    return found;
}

/** Controls of the window's panels whose letter also opens a menu, or belongs to another control as well. */
QStringList controlsWithLettersOfMenus(const MainWindow& window)
{
    QStringList found;
    std::map<QString, QString> texts;
    const auto add = [&](const QString& text) {
        const QString letter = QKeySequence::mnemonic(text).toString();
        if (letter.isEmpty())
            return;
        const auto [first, isNew] = texts.emplace(letter, text);
        if (!isNew)
            found.append(u"%1 and %2"_s.arg(first->second, text));
    };
    for (const QAction* const action : window.menuBar()->actions())
        add(action->text());
    const auto* const inspector = window.findChild<inspector::InspectorPanel*>();
    EXPECT_TRUE(inspector);
    for (const QLabel* const label : inspector->findChildren<QLabel*>())
        add(label->buddy() ? label->text() : QString());
    for (const QAbstractButton* const button : inspector->findChildren<QAbstractButton*>())
        add(button->text());
    return found;
}

} // namespace

TEST(ChooseLocaleTest, theStartThenTheSettingThenTheSystem)
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(u"settings.ini"_s), QSettings::IniFormat);
    const struct
    {
        QString requested;
        QVariant setting;
        QLocale expected;
    } cases[] = {
        {{}, {}, QLocale::system()},
        {{}, u""_s, QLocale::system()},
        {{}, u"de_AT"_s, QLocale(QLocale::German, QLocale::Austria)},
        {u"fr"_s, u"de"_s, QLocale(QLocale::French)},
        {u"no such language"_s, u"de"_s, QLocale::c()},
    };
    for (const auto& sample : cases) {
        settings.setValue("appearance/language", sample.setting);
        EXPECT_EQ(chooseLocale(sample.requested, settings), sample.expected)
            << sample.requested.toStdString();
        EXPECT_EQ(settings.value("appearance/language"), sample.setting);
    }
}

TEST(TranslationsTest, germanReachesMenusQuestionsAndCounts)
{
    const Translations german(QLocale(QLocale::German, QLocale::Switzerland));
    const test::TestDesk desk;
    MainWindow window(desk.context, QString());
    QStringList titles;
    for (const QAction* const action : window.menuBar()->actions())
        titles.append(plain(action->text()));
    EXPECT_TRUE(
        titles.contains(u"Datei"_s) && titles.contains(u"Bearbeiten"_s) && titles.contains(u"Fenster"_s))
        << titles.join(u' ').toStdString();
    const QMenu* const file = menuNamed(*window.menuBar(), u"Datei"_s);
    ASSERT_TRUE(file);
    EXPECT_TRUE(std::ranges::any_of(
        file->actions(), [](const QAction* action) { return plain(action->text()) == u"Speichern"_s; }));

    // The toolkit's own texts come from its own catalogue.
    QMessageBox box(QMessageBox::NoIcon, {}, {}, QMessageBox::Cancel);
    EXPECT_EQ(plain(box.button(QMessageBox::Cancel)->text()), u"Abbrechen"_s);
    // The layout of the dialogs bears the longer words.
    const SelfTestReport report = runDialogSelfTest(window, desk.context);
    EXPECT_TRUE(report.isPassed) << report.lines.join(u'\n').toStdString();
}

TEST(TranslationsTest, everyEntryAndControlHasALetterOfItsOwn)
{
    for (const QLocale::Language language : {QLocale::English, QLocale::German}) {
        const Translations translations{QLocale(language)};
        const test::TestDesk desk;
        const MainWindow window(desk.context, QString());
        QStringList shared = entriesWithSharedLetters(window.menuBar()->actions());
        shared += controlsWithLettersOfMenus(window);
        EXPECT_TRUE(shared.isEmpty()) << shared.join(u'\n').toStdString();
    }
}

TEST(TranslationsTest, withoutACatalogueTextsStayEnglishAndCountWell)
{
    const auto removed = [](int count) {
        return QCoreApplication::translate(
            "tw::desktop::manuscript::DocumentActions",
            "Removed %n documents with all that was in them. Undo brings them back.", "", count);
    };
    for (const QLocale& locale : {QLocale::c(), QLocale(QLocale::English), QLocale(QLocale::Zulu)}) {
        const Translations translations(locale);
        EXPECT_TRUE(removed(1).startsWith(u"Removed 1 document with"_s)) << removed(1).toStdString();
        EXPECT_TRUE(removed(2).startsWith(u"Removed 2 documents with"_s)) << removed(2).toStdString();
        EXPECT_EQ(QCoreApplication::translate("tw::desktop::shell::MainWindow", "&File"), u"&File"_s);
    }
}

TEST(TranslationsTest, cataloguesKeepPlacesKeysAndDots)
{
    for (const QString& name : {u"de"_s, u"en"_s}) {
        const QList<Text> texts = textsOf(test::repositoryPath(u"i18n/vellory_%1.ts"_s.arg(name)));
        EXPECT_FALSE(texts.isEmpty());
        for (const Text& text : texts) {
            for (const QString& translation : text.translations) {
                if (translation.isEmpty())
                    continue;
                // The singular may spell its number out.
                QStringList expected = placesIn(text.source);
                QStringList places = placesIn(translation);
                if (translation == text.translations.first()) {
                    for (const QString& count : {u"%n"_s, u"%Ln"_s}) {
                        expected.removeAll(count);
                        places.removeAll(count);
                    }
                }
                const std::string shown = text.source.toStdString() + " / " + translation.toStdString();
                EXPECT_EQ(places, expected) << shown;
                EXPECT_EQ(translation.endsWith(u'…'), text.source.endsWith(u'…')) << shown;
            }
        }
    }
}

} // namespace tw::desktop::shell
