#include "desktop/manuscript/NamedStylesDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using Limits = NamedStyleLimits;

namespace {

constexpr int nameRole = Qt::UserRole;
constexpr int listCharacters = 22;
constexpr int sampleLines = 3;

QSpinBox* stepsField(QWidget* parent)
{
    auto* const field = new QSpinBox(parent);
    field->setRange(0, Limits::mostSteps);
    return field;
}

} // namespace

NamedStylesDialog::NamedStylesDialog(
    NamedStyles styles, const QStringList& names, const QString& current, QWidget* parent)
    : QDialog(parent)
    , m_styles(std::move(styles))
    , m_list(new QListWidget(this))
    , m_remove(new QPushButton(this))
    , m_form(new QWidget(this))
    , m_hasFont(new QCheckBox(tr("Own &font"), m_form))
    , m_font(new QFontComboBox(m_form))
    , m_size(new QSpinBox(m_form))
    , m_bold(new QCheckBox(tr("&Bold"), m_form))
    , m_italic(new QCheckBox(tr("&Italic"), m_form))
    , m_align(new QComboBox(m_form))
    , m_left(stepsField(m_form))
    , m_right(stepsField(m_form))
    , m_close(new QCheckBox(tr("Paragraphs stand &close together"), m_form))
    , m_sample(new QLabel(this))
{
    setWindowTitle(tr("Paragraph Styles"));
    for (const QString& name : names)
        m_styles.try_emplace(name);

    m_list->setAccessibleName(tr("Paragraph styles"));
    m_list->setMinimumWidth(fontMetrics().averageCharWidth() * listCharacters);
    auto* const add = new QPushButton(tr("&New…"), this);
    add->setAutoDefault(false);
    m_remove->setAutoDefault(false);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(m_remove);
    auto* const left = new QVBoxLayout;
    left->addWidget(m_list, 1);
    left->addLayout(buttons);

    m_font->setAccessibleName(tr("Font"));
    m_font->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_size->setRange(Limits::smallestPercent, Limits::largestPercent);
    m_size->setSuffix(tr(" % of the page's"));
    m_align->addItem(tr("As the page"), QString());
    m_align->addItem(tr("Left"), u"left"_s);
    m_align->addItem(tr("Centred"), u"center"_s);
    m_align->addItem(tr("Right"), u"right"_s);
    m_align->addItem(tr("Justified"), u"justify"_s);
    auto* const weight = new QHBoxLayout;
    weight->addWidget(m_bold);
    weight->addWidget(m_italic);
    weight->addStretch(1);
    auto* const form = new QFormLayout(m_form);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(m_hasFont, m_font);
    form->addRow(tr("&Size"), m_size);
    form->addRow(QString(), weight);
    form->addRow(tr("&Alignment"), m_align);
    form->addRow(tr("Indent on the &left"), m_left);
    form->addRow(tr("Indent on the &right"), m_right);
    form->addRow(QString(), m_close);

    m_sample->setWordWrap(true);
    m_sample->setBackgroundRole(QPalette::Base);
    m_sample->setAutoFillBackground(true);
    m_sample->setMargin(12);
    m_sample->setMinimumHeight(fontMetrics().lineSpacing() * (sampleLines + 2));
    m_sample->setAccessibleName(tr("Sample"));

    auto* const right = new QVBoxLayout;
    right->addWidget(m_form);
    right->addWidget(m_sample, 1);
    auto* const columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right, 1);
    auto* const closing = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    closing->addButton(tr("Set Styles"), QDialogButtonBox::AcceptRole);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addWidget(closing);

    connect(closing, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(closing, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(add, &QPushButton::clicked, this, &NamedStylesDialog::addStyle);
    connect(m_remove, &QPushButton::clicked, this, &NamedStylesDialog::removeStyle);
    connect(m_list, &QListWidget::currentRowChanged, this, &NamedStylesDialog::showStyle);
    connect(m_font, &QFontComboBox::currentFontChanged, this, &NamedStylesDialog::takeStyle);
    connect(m_align, &QComboBox::currentIndexChanged, this, &NamedStylesDialog::takeStyle);
    for (QCheckBox* const box : {m_hasFont, m_bold, m_italic, m_close})
        connect(box, &QCheckBox::toggled, this, &NamedStylesDialog::takeStyle);
    for (QSpinBox* const box : {m_size, m_left, m_right})
        connect(box, &QSpinBox::valueChanged, this, &NamedStylesDialog::takeStyle);
    fillList(current);
}

void NamedStylesDialog::fillList(const QString& current)
{
    m_list->clear();
    for (const auto& [name, style] : m_styles) {
        auto* const item = new QListWidgetItem(namedStyleTitle(name), m_list);
        item->setData(nameRole, name);
        if (name == current)
            m_list->setCurrentItem(item);
    }
    if (!m_list->currentItem())
        m_list->setCurrentRow(0);
    showStyle();
}

QString NamedStylesDialog::currentName() const
{
    const QListWidgetItem* const item = m_list->currentItem();
    return item ? item->data(nameRole).toString() : QString();
}

void NamedStylesDialog::showStyle()
{
    const QString name = currentName();
    const bool isBuiltIn = builtInNamedStyles().contains(name);
    m_form->setEnabled(!name.isEmpty());
    m_remove->setEnabled(!name.isEmpty());
    m_remove->setText(isBuiltIn ? tr("Re&store") : tr("&Remove"));
    m_remove->setToolTip(
        isBuiltIn ? tr("Have this style look as it came")
                  : tr("Forget this look; paragraphs keep the name of the style"));
    if (name.isEmpty())
        return;
    const NamedStyle style = m_styles.at(name);
    const QScopedValueRollback showing(m_isShowing, true);
    m_hasFont->setChecked(!style.fontFamily.isEmpty());
    if (!style.fontFamily.isEmpty())
        m_font->setCurrentFont(QFont(style.fontFamily));
    m_size->setValue(style.sizePercent);
    m_bold->setChecked(style.isBold);
    m_italic->setChecked(style.isItalic);
    m_align->setCurrentIndex(std::max(0, m_align->findData(style.align)));
    m_left->setValue(style.leftSteps);
    m_right->setValue(style.rightSteps);
    m_close->setChecked(style.isClose);
    m_font->setEnabled(m_hasFont->isChecked());
    showSample();
}

void NamedStylesDialog::takeStyle()
{
    m_font->setEnabled(m_hasFont->isChecked());
    const QString name = currentName();
    if (m_isShowing || name.isEmpty())
        return;
    m_styles.at(name) = {
        .fontFamily = m_hasFont->isChecked() ? m_font->currentFont().family() : QString(),
        .sizePercent = m_size->value(),
        .isBold = m_bold->isChecked(),
        .isItalic = m_italic->isChecked(),
        .align = m_align->currentData().toString(),
        .leftSteps = m_left->value(),
        .rightSteps = m_right->value(),
        .isClose = m_close->isChecked(),
    };
    showSample();
}

void NamedStylesDialog::addStyle()
{
    bool isAccepted = false;
    const QString name = QInputDialog::getText(
                             this, tr("New Paragraph Style"), tr("Name of the style, as in “Telegram”:"),
                             QLineEdit::Normal, {}, &isAccepted)
                             .trimmed()
                             .remove(u'"');
    if (!isAccepted || name.isEmpty())
        return;
    m_styles.try_emplace(name);
    fillList(name);
}

void NamedStylesDialog::removeStyle()
{
    const QString name = currentName();
    const auto builtIn = builtInNamedStyles().find(name);
    if (builtIn != builtInNamedStyles().end())
        m_styles.insert_or_assign(name, builtIn->second);
    else
        m_styles.erase(name);
    fillList(name);
}

void NamedStylesDialog::showSample()
{
    const NamedStyle& style = m_styles.at(currentName());
    QFont font = m_sample->parentWidget()->font();
    if (!style.fontFamily.isEmpty())
        font.setFamily(style.fontFamily);
    font.setPointSizeF(font.pointSizeF() * style.sizePercent / 100);
    font.setBold(style.isBold);
    font.setItalic(style.isItalic);
    m_sample->setFont(font);
    m_sample->setText(tr("The tide came in before the letter did, and both were late."));
    Qt::Alignment alignment = Qt::AlignLeft;
    if (style.align == "center"_L1)
        alignment = Qt::AlignHCenter;
    else if (style.align == "right"_L1)
        alignment = Qt::AlignRight;
    m_sample->setAlignment(alignment | Qt::AlignVCenter);
    const int step = fontMetrics().averageCharWidth() * 3;
    m_sample->setContentsMargins(style.leftSteps * step, 0, style.rightSteps * step, 0);
}

} // namespace tw::desktop::manuscript
