#include "desktop/settings/ProofreadingPage.h"

#include "desktop/fields/NoteLabel.h"
#include "desktop/proofreading/LanguageMenu.h"
#include "desktop/proofreading/ProofreadingService.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tw::desktop::settings {

using namespace Qt::Literals::StringLiterals;
using proofreading::ProblemKind;
using proofreading::ProofreadingSettings;

namespace {

constexpr int linesOfLanguages = 3;
constexpr int linesOfWords = 4;

QCheckBox* makeSwitch(const QString& text, const QString& name, bool isOn, QWidget* parent)
{
    auto* const box = new QCheckBox(text, parent);
    box->setObjectName(name);
    box->setChecked(isOn);
    return box;
}

void limitLines(QListWidget& list, int lines)
{
    list.setFixedHeight(list.fontMetrics().lineSpacing() * (lines + 1) + 2 * list.frameWidth() + lines * 4);
}

} // namespace

ProofreadingPage::ProofreadingPage(
    const shell::DeskContext& desk, proofreading::ProofreadingService& service, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_service(service)
    , m_words(new QListWidget(this))
    , m_remove(new QPushButton(tr("&Remove"), this))
{
    auto* const form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    addSpelling(*form);
    addWords(*form);
    addRules(*form);
}

void ProofreadingPage::addSpelling(QFormLayout& form)
{
    const ProofreadingSettings& settings = m_service.settings();
    auto* const marks =
        makeSwitch(tr("&Check spelling while typing"), u"marksSpelling"_s, settings.marksSpelling, this);
    auto* const capitals =
        makeSwitch(tr("Leave out words in ca&pitals"), u"skipsCapitals"_s, settings.skipsAllCapitals, this);
    connect(marks, &QCheckBox::toggled, this, [this](bool isOn) {
        ProofreadingSettings changed = m_service.settings();
        changed.marksSpelling = isOn;
        m_service.setSettings(changed);
    });
    connect(capitals, &QCheckBox::toggled, this, [this](bool isOn) {
        ProofreadingSettings changed = m_service.settings();
        changed.skipsAllCapitals = isOn;
        m_service.setSettings(changed);
    });
    form.addRow(tr("Spelling"), marks);
    form.addRow(QString(), capitals);

    auto* const languages = new QListWidget(this);
    languages->setObjectName(u"languages"_s);
    languages->setAccessibleName(tr("Languages"));
    limitLines(*languages, linesOfLanguages);
    const QStringList chosen = m_service.languagesOf({});
    for (const QString& code : m_service.languages()) {
        auto* const item = new QListWidgetItem(proofreading::languageTitle(code), languages);
        item->setData(Qt::UserRole, code);
        item->setCheckState(chosen.contains(code) ? Qt::Checked : Qt::Unchecked);
    }
    connect(languages, &QListWidget::itemChanged, this, [this, languages] {
        ProofreadingSettings changed = m_service.settings();
        changed.languages.clear();
        for (int row = 0; row < languages->count(); ++row) {
            if (languages->item(row)->checkState() == Qt::Checked)
                changed.languages.append(languages->item(row)->data(Qt::UserRole).toString());
        }
        m_service.setSettings(changed);
    });
    form.addRow(tr("&Languages"), languages);
    auto* const note = new fields::NoteLabel(m_desk.themes, this);
    if (m_service.languages().isEmpty())
        note->setNote(
            tr("No dictionary is installed. Install one of your language (packages are named hunspell-…) and "
               "start Vellory again."),
            fields::NoteLabel::Tone::Warning);
    else
        note->setNote(m_service.dictionaryFailure(), fields::NoteLabel::Tone::Error);
    form.addRow(QString(), note);
}

void ProofreadingPage::addWords(QFormLayout& form)
{
    m_words->setObjectName(u"userWords"_s);
    m_words->setAccessibleName(tr("Your words"));
    m_words->setSelectionMode(QAbstractItemView::ExtendedSelection);
    limitLines(*m_words, linesOfWords);
    m_remove->setAutoDefault(false);
    m_remove->setObjectName(u"removeWords"_s);
    auto* const column = new QVBoxLayout;
    column->addWidget(m_words);
    column->addWidget(m_remove, 0, Qt::AlignLeading);
    form.addRow(tr("&Your words"), column);
    static_cast<QLabel*>(form.labelForField(column))->setBuddy(m_words);
    connect(m_remove, &QPushButton::clicked, this, &ProofreadingPage::removeSelectedWords);
    connect(m_words, &QListWidget::itemSelectionChanged, this, [this] {
        m_remove->setEnabled(!m_words->selectedItems().isEmpty());
    });
    connect(
        &m_service, &proofreading::ProofreadingService::userWordsChanged, this, &ProofreadingPage::fillWords);
    fillWords();
}

void ProofreadingPage::fillWords()
{
    m_words->clear();
    m_words->addItems(m_service.userWords());
    m_remove->setEnabled(false);
}

void ProofreadingPage::removeSelectedWords()
{
    QStringList words;
    for (const QListWidgetItem* const item : m_words->selectedItems())
        words.append(item->text());
    for (const QString& word : words)
        m_service.removeFromDictionary(word);
}

void ProofreadingPage::addRules(QFormLayout& form)
{
    const ProofreadingSettings& settings = m_service.settings();
    auto* const marks = makeSwitch(tr("Pr&oofread while typing"), u"marksStyle"_s, settings.marksStyle, this);
    connect(marks, &QCheckBox::toggled, this, [this](bool isOn) {
        ProofreadingSettings changed = m_service.settings();
        changed.marksStyle = isOn;
        m_service.setSettings(changed);
    });
    form.addRow(tr("Style"), marks);
    auto* const grid = new QGridLayout;
    int place = 0;
    for (const ProblemKind kind : proofreading::problemKinds()) {
        if (kind == ProblemKind::Spelling)
            continue;
        const QString id = idOf(kind);
        auto* const box =
            makeSwitch(titleOf(kind), u"rule."_s + id, !settings.disabledRules.contains(id), this);
        connect(box, &QCheckBox::toggled, this, [this, id](bool isOn) {
            ProofreadingSettings changed = m_service.settings();
            if (isOn)
                changed.disabledRules.remove(id);
            else
                changed.disabledRules.insert(id);
            m_service.setSettings(changed);
        });
        grid->addWidget(box, place / 2, place % 2);
        ++place;
    }
    form.addRow(tr("Rules"), grid);
}

} // namespace tw::desktop::settings
