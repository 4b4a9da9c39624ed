#include "desktop/settings/EditorPage.h"

#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSettings>
#include <QSignalBlocker>
#include <QSpinBox>

namespace tw::desktop::settings {

using namespace Qt::Literals::StringLiterals;
using manuscript::PageStyle;

namespace {

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
{
    using manuscript::PageLimits;
    m_font->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
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
    form->addRow(QString(), reset);
    show(manuscript::pageStyleFrom(desk.settings));

    connect(m_font, &QFontComboBox::currentFontChanged, this, &EditorPage::store);
    connect(m_size, &QDoubleSpinBox::valueChanged, this, &EditorPage::store);
    connect(m_width, &QSpinBox::valueChanged, this, &EditorPage::store);
    connect(m_lineHeight, &QDoubleSpinBox::valueChanged, this, &EditorPage::store);
    connect(reset, &QPushButton::clicked, this, [this] {
        manuscript::forgetPageStyle(m_desk.settings);
        show(manuscript::pageStyleFrom(m_desk.settings));
        emit pageStyleChanged();
    });
}

void EditorPage::show(const PageStyle& style)
{
    const QSignalBlocker font(m_font);
    const QSignalBlocker size(m_size);
    const QSignalBlocker width(m_width);
    const QSignalBlocker lineHeight(m_lineHeight);
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
    manuscript::storePageStyle(m_desk.settings, style);
    emit pageStyleChanged();
}

} // namespace tw::desktop::settings
