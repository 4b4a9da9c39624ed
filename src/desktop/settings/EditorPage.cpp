#include "desktop/settings/EditorPage.h"

#include "desktop/manuscript/TypingSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QLocale>
#include <QPushButton>
#include <QSettings>
#include <QSignalBlocker>
#include <QSpinBox>

namespace tw::desktop::settings {

using namespace Qt::Literals::StringLiterals;
using manuscript::PageStyle;
namespace typingkeys = manuscript::typingkeys;

namespace {

constexpr QLatin1StringView wordCountKey = "editor/showWordCount"_L1;
constexpr qreal fontStep = 0.5;
constexpr qreal lineStep = 0.1;

} // namespace

EditorPage::EditorPage(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_font(new QFontComboBox(this))
    , m_size(new QDoubleSpinBox(this))
    , m_width(new QSpinBox(this))
    , m_lineHeight(new QDoubleSpinBox(this))
    , m_indents(new QCheckBox(tr("Begin paragraphs with an &indented line"), this))
    , m_wordCount(new QCheckBox(tr("Show word &counts in the status bar"), this))
    , m_autoCorrect(new QCheckBox(tr("Correct while &typing"), this))
    , m_quotes(new QComboBox(this))
    , m_dashes(new QCheckBox(tr("Make &dashes of two or three hyphens"), this))
    , m_ellipsis(new QCheckBox(tr("Make an &ellipsis of three dots"), this))
    , m_mentions(new QCheckBox(tr("&Underline names of the codex"), this))
{
    using manuscript::PageLimits;
    m_font->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_autoCorrect->setObjectName(u"autoCorrect"_s);
    m_size->setRange(PageLimits::smallestFont, PageLimits::largestFont);
    m_size->setSingleStep(fontStep);
    m_size->setDecimals(1);
    m_size->setSuffix(tr(" pt"));
    m_width->setObjectName(u"pageWidth"_s);
    m_width->setRange(PageLimits::narrowest, PageLimits::widest);
    m_width->setSuffix(tr(" characters"));
    m_lineHeight->setRange(PageLimits::tightest, PageLimits::loosest);
    m_lineHeight->setSingleStep(lineStep);
    m_lineHeight->setDecimals(1);
    m_lineHeight->setSuffix(tr(" lines"));
    auto* const reset = new QPushButton(tr("&Restore Defaults"), this);
    reset->setAutoDefault(false);

    auto* const form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("Page &font"), m_font);
    form->addRow(tr("&Size"), m_size);
    form->addRow(tr("Page &width"), m_width);
    form->addRow(tr("&Line height"), m_lineHeight);
    form->addRow(QString(), m_indents);
    addTypingRows(*form);
    form->addRow(QString(), reset);
    show(manuscript::pageStyleFrom(desk.settings));

    connect(m_font, &QFontComboBox::currentFontChanged, this, &EditorPage::store);
    connect(m_size, &QDoubleSpinBox::valueChanged, this, &EditorPage::store);
    connect(m_width, &QSpinBox::valueChanged, this, &EditorPage::store);
    connect(m_lineHeight, &QDoubleSpinBox::valueChanged, this, &EditorPage::store);
    connect(m_indents, &QCheckBox::toggled, this, &EditorPage::store);
    connect(reset, &QPushButton::clicked, this, [this] {
        manuscript::forgetPageStyle(m_desk.settings);
        for (const QLatin1StringView key :
             {wordCountKey, typingkeys::autoCorrect, typingkeys::quotes, typingkeys::dashes,
              typingkeys::ellipsis, typingkeys::mentions})
            m_desk.settings.remove(key);
        showTyping();
        show(manuscript::pageStyleFrom(m_desk.settings));
        emit editorSettingsChanged();
    });
}

void EditorPage::addTypingRows(QFormLayout& form)
{
    m_quotes->addItem(tr("As in the language of the program"), QString());
    m_quotes->addItem(tr("Leave quotes as typed"), QString(typingkeys::quotesOff));
    for (const auto& marks : app::typing::allQuotationMarks()) {
        const QLocale locale{QString(marks.language)};
        // A language alone names no country.
        const QString country =
            marks.language.contains(u'-') ? u" (%1)"_s.arg(locale.nativeTerritoryName()) : QString();
        m_quotes->addItem(
            u"%1%2  %3…%4"_s.arg(locale.nativeLanguageName(), country, marks.opening, marks.closing),
            QString(marks.language));
    }
    m_quotes->setAccessibleName(tr("Typographic quotes"));
    form.addRow(QString(), m_mentions);
    form.addRow(QString(), m_wordCount);
    form.addRow(QString(), m_autoCorrect);
    form.addRow(tr("&Quotes"), m_quotes);
    form.addRow(QString(), m_dashes);
    form.addRow(QString(), m_ellipsis);
    showTyping();
    connect(m_wordCount, &QCheckBox::toggled, this, &EditorPage::storeTyping);
    connect(m_autoCorrect, &QCheckBox::toggled, this, &EditorPage::storeTyping);
    connect(m_quotes, &QComboBox::currentIndexChanged, this, &EditorPage::storeTyping);
    connect(m_dashes, &QCheckBox::toggled, this, &EditorPage::storeTyping);
    connect(m_ellipsis, &QCheckBox::toggled, this, &EditorPage::storeTyping);
    connect(m_mentions, &QCheckBox::toggled, this, &EditorPage::storeTyping);
}

void EditorPage::showTyping()
{
    const QSignalBlocker quotes(m_quotes);
    const QSignalBlocker dashes(m_dashes);
    const QSignalBlocker ellipsis(m_ellipsis);
    const QSignalBlocker mentions(m_mentions);
    const QSignalBlocker wordCount(m_wordCount);
    const QSignalBlocker autoCorrect(m_autoCorrect);
    const QSettings& settings = m_desk.settings;
    m_wordCount->setChecked(settings.value(wordCountKey, true).toBool());
    m_autoCorrect->setChecked(settings.value(typingkeys::autoCorrect, true).toBool());
    m_mentions->setChecked(settings.value(typingkeys::mentions).toBool());
    const QVariant chosen = settings.value(typingkeys::quotes, QString());
    m_quotes->setCurrentIndex(std::max(0, m_quotes->findData(chosen)));
    m_dashes->setChecked(settings.value(typingkeys::dashes, true).toBool());
    m_ellipsis->setChecked(settings.value(typingkeys::ellipsis, true).toBool());
    for (QWidget* const rule :
         {static_cast<QWidget*>(m_quotes), static_cast<QWidget*>(m_dashes),
          static_cast<QWidget*>(m_ellipsis)})
        rule->setEnabled(m_autoCorrect->isChecked());
}

void EditorPage::storeTyping()
{
    m_desk.settings.setValue(wordCountKey, m_wordCount->isChecked());
    m_desk.settings.setValue(typingkeys::autoCorrect, m_autoCorrect->isChecked());
    const QString quotes = m_quotes->currentData().toString();
    if (quotes.isEmpty())
        m_desk.settings.remove(typingkeys::quotes);
    else
        m_desk.settings.setValue(typingkeys::quotes, quotes);
    m_desk.settings.setValue(typingkeys::dashes, m_dashes->isChecked());
    m_desk.settings.setValue(typingkeys::ellipsis, m_ellipsis->isChecked());
    m_desk.settings.setValue(typingkeys::mentions, m_mentions->isChecked());
    showTyping();
    emit editorSettingsChanged();
}

void EditorPage::show(const PageStyle& style)
{
    const QSignalBlocker font(m_font);
    const QSignalBlocker size(m_size);
    const QSignalBlocker width(m_width);
    const QSignalBlocker lineHeight(m_lineHeight);
    const QSignalBlocker indents(m_indents);
    m_indents->setChecked(style.hasFirstLineIndents);
    m_font->setCurrentFont(QFont(style.fontFamily));
    m_size->setValue(style.fontPointSize);
    m_width->setValue(style.columnCharacters);
    m_lineHeight->setValue(style.lineHeight);
}

void EditorPage::store()
{
    PageStyle style = manuscript::pageStyleFrom(m_desk.settings);
    style.fontFamily = m_font->currentFont().family();
    style.fontPointSize = m_size->value();
    style.columnCharacters = m_width->value();
    style.lineHeight = m_lineHeight->value();
    style.hasFirstLineIndents = m_indents->isChecked();
    manuscript::storePageStyle(m_desk.settings, style);
    emit editorSettingsChanged();
}

} // namespace tw::desktop::settings
