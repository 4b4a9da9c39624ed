// The actions of the Format menu.
#include "desktop/manuscript/TextActions.h"

#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/NamedStylesDialog.h"

#include <QAction>
#include <QColorDialog>
#include <QFontDialog>
#include <QMenu>
#include <QPainter>
#include <QTextBlock>

#include <algorithm>
#include <array>
#include <cmath>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using core::document::markup::BlockKind;
using core::document::markup::InlineAttributes;
using core::document::markup::RunStyle;
using icons::Icon;
using rich::BlockShape;
using rich::TextToggle;

namespace {

constexpr int headingLevels = 6;
constexpr int swatchSize = 16;

/** Colours as documents keep them: readable on white paper; dark pages show a lighter one of the same hue. */
struct DocumentColor
{
    const char* name;
    QLatin1StringView value;
};

constexpr std::array inkColors{
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Red"), "#b0302a"_L1},
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Orange"), "#9a5d0c"_L1},
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Green"), "#2f6f3a"_L1},
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Blue"), "#2c5fa0"_L1},
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Violet"), "#68499f"_L1},
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Grey"), "#6a6560"_L1},
};
constexpr std::array highlightColors{
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Yellow"), "#fff0a6"_L1},
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Orange"), "#fddcb5"_L1},
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Green"), "#cfeccb"_L1},
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Blue"), "#cde3f7"_L1},
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Pink"), "#f9d3e2"_L1},
    DocumentColor{QT_TRANSLATE_NOOP("tw::desktop::manuscript::TextActions", "Grey"), "#e2dfda"_L1},
};

QIcon swatch(QLatin1StringView color)
{
    QPixmap pixmap(swatchSize * 2, swatchSize * 2);
    pixmap.setDevicePixelRatio(2);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(color));
    painter.drawRoundedRect(QRectF(1, 1, swatchSize - 2, swatchSize - 2), 3, 3);
    return pixmap;
}

/** Another kind of block, its alignment and spacing kept. */
void become(BlockShape& shape, BlockKind kind, int level)
{
    const auto attributes = shape.attributes;
    shape = {};
    shape.kind = kind;
    shape.level = level;
    shape.attributes = attributes;
    shape.attributes.style.clear();
}

bool takesInlineStyles(const rich::RichPage& page)
{
    return page.currentShape().kind != BlockKind::Code;
}

bool takesAttributes(const rich::RichPage& page)
{
    const BlockKind kind = page.currentShape().kind;
    return kind != BlockKind::Code && kind != BlockKind::Table && kind != BlockKind::Rule;
}

bool isNoCell(const rich::RichPage& page)
{
    return page.currentShape().kind != BlockKind::Table;
}

QKeySequence keys(Qt::KeyboardModifiers modifiers, Qt::Key key)
{
    return QKeySequence(QKeyCombination(modifiers, key));
}

} // namespace

void TextActions::fillFormatMenu(QMenu& menu)
{
    m_paragraphStyles = menu.addMenu(m_desk.icons.icon(Icon::Text), tr("Paragraph &Style"));
    addParagraphStyles(*m_paragraphStyles);
    addAlignments(*menu.addMenu(m_desk.icons.icon(Icon::AlignLeft), tr("&Alignment")));
    addSpacings(*menu.addMenu(m_desk.icons.icon(Icon::Columns), tr("&Line Spacing")));
    add(menu,
        {"format.bulletList", Icon::BulletList, tr("&Bullet List"),
         keys(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_8)},
        [](Page& page) { page.toggleList(BlockKind::BulletItem, tr("Bullet list")); },
        {{}, isNoCell, [](const Page& page) { return page.currentShape().kind == BlockKind::BulletItem; }});
    add(menu,
        {"format.numberedList", Icon::NumberedList, tr("Nu&mbered List"),
         keys(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_7)},
        [](Page& page) { page.toggleList(BlockKind::NumberedItem, tr("Numbered list")); },
        {{}, isNoCell, [](const Page& page) { return page.currentShape().kind == BlockKind::NumberedItem; }});
    add(menu, {"format.indent", Icon::Indent, tr("&Indent"), keys(Qt::ControlModifier, Qt::Key_BracketRight)},
        [](Page& page) { page.indentBlocks(1); }, {{}, takesAttributes, {}});
    add(menu,
        {"format.outdent", Icon::Outdent, tr("&Outdent"), keys(Qt::ControlModifier, Qt::Key_BracketLeft)},
        [](Page& page) { page.indentBlocks(-1); }, {{}, takesAttributes, {}});
    add(menu, {"format.pageBreakBefore", Icon::PageBreak, tr("Pa&ge Break Before")},
        [](Page& page) {
            const bool has = page.currentShape().attributes.pageBreak;
            page.changeBlocks(
                tr("Page break"), [has](BlockShape& shape) { shape.attributes.pageBreak = !has; });
        },
        {{}, takesAttributes, [](const Page& page) { return page.currentShape().attributes.pageBreak; }});
    menu.addSeparator();
    addToggle(
        menu, {"format.bold", Icon::Bold, tr("Bol&d"), QKeySequence::Bold}, TextToggle::Bold, tr("Bold"));
    addToggle(
        menu, {"format.italic", Icon::Italic, tr("I&talic"), QKeySequence::Italic}, TextToggle::Italic,
        tr("Italic"));
    addToggle(
        menu, {"format.underline", Icon::Underline, tr("&Underline"), QKeySequence::Underline},
        TextToggle::Underline, tr("Underline"));
    addToggle(
        menu,
        {"format.strikethrough", Icon::Strikethrough, tr("Stri&kethrough"),
         keys(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_X)},
        TextToggle::Strikethrough, tr("Strikethrough"));
    addToggle(
        menu,
        {"format.superscript", Icon::Superscript, tr("Su&perscript"),
         keys(Qt::ControlModifier | Qt::AltModifier, Qt::Key_Up)},
        TextToggle::Superscript, tr("Superscript"));
    addToggle(
        menu,
        {"format.subscript", Icon::Subscript, tr("Subs&cript"),
         keys(Qt::ControlModifier | Qt::AltModifier, Qt::Key_Down)},
        TextToggle::Subscript, tr("Subscript"));
    addToggle(
        menu,
        {"format.code", Icon::Number, tr("Cod&e"), keys(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_M)},
        TextToggle::Code, tr("Code"));
    addColors(menu);
    add(menu, {"format.font", Icon::Text, tr("Fo&nt…"), keys(Qt::ControlModifier, Qt::Key_D)},
        [this](Page& page) { chooseFont(page); }, {{}, takesInlineStyles, {}});
    add(menu,
        {"format.clear", Icon::ClearFormat, tr("Clear Fo&rmatting"),
         keys(Qt::ControlModifier, Qt::Key_Space)},
        [](Page& page) {
            page.changeStyle(tr("Clear formatting"), [](RunStyle& style) {
                const QString link = style.link;
                style = {};
                style.link = link;
            });
        },
        {{}, takesInlineStyles, {}});
}

void TextActions::addToggle(QMenu& menu, const ActionText& text, TextToggle toggle, const QString& label)
{
    add(menu, text, [toggle, label](Page& page) { page.toggleStyle(toggle, label); },
        {{}, takesInlineStyles, [toggle](const Page& page) { return page.hasStyle(toggle); }});
}

void TextActions::addStyle(QMenu& menu, const ActionText& text, BlockKind kind, int level)
{
    add(menu, text,
        [kind, level](Page& page) {
            page.changeBlocks(
                tr("Paragraph style"), [kind, level](BlockShape& shape) { become(shape, kind, level); });
        },
        {{}, isNoCell, [kind, level](const Page& page) {
             const BlockShape shape = page.currentShape();
             return shape.kind == kind && (kind != BlockKind::Heading || shape.level == level) &&
                    shape.attributes.style.isEmpty();
         }});
}

void TextActions::addParagraphStyles(QMenu& menu)
{
    addStyle(
        menu,
        {"format.body", Icon::Text, tr("&Body"), keys(Qt::ControlModifier | Qt::AltModifier, Qt::Key_0)},
        BlockKind::Paragraph, 0);
    static constexpr std::array names{
        "format.heading1", "format.heading2", "format.heading3",
        "format.heading4", "format.heading5", "format.heading6",
    };
    for (int level = 1; level <= headingLevels; ++level) {
        addStyle(
            menu,
            {names[static_cast<std::size_t>(level) - 1], Icon::Text, tr("Heading &%1").arg(level),
             keys(Qt::ControlModifier | Qt::AltModifier, static_cast<Qt::Key>(Qt::Key_0 + level))},
            BlockKind::Heading, level);
    }
    addStyle(
        menu,
        {"format.quotation", Icon::Quotation, tr("&Quotation"),
         keys(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_9)},
        BlockKind::Quotation, 1);
    addStyle(menu, {"format.codeBlock", Icon::Number, tr("&Code")}, BlockKind::Code, 0);
    menu.addSeparator();
    QMenu* const named = menu.addMenu(m_desk.icons.icon(Icon::Rename), tr("&Named Style"));
    connect(named, &QMenu::aboutToShow, this, [this, named] { fillNamedStyles(*named); });
}

void TextActions::fillNamedStyles(QMenu& menu)
{
    menu.clear();
    if (!m_page)
        return;
    QStringList names = stylesInText();
    for (const auto& [name, style] : namedStylesFrom(m_desk.settings)) {
        if (!names.contains(name))
            names.append(name);
    }
    std::ranges::sort(names, [](const QString& left, const QString& right) {
        return namedStyleTitle(left).localeAwareCompare(namedStyleTitle(right)) < 0;
    });
    const auto use = [this](const QString& name) {
        if (m_page)
            m_page->changeBlocks(
                tr("Paragraph style"), [name](BlockShape& shape) { shape.attributes.style = name; });
    };
    const QString present = m_page->currentShape().attributes.style;
    for (const QString& name : std::as_const(names)) {
        QAction* const action = menu.addAction(namedStyleTitle(name).replace(u'&', u"&&"_s));
        action->setCheckable(true);
        action->setChecked(name == present);
        connect(action, &QAction::triggered, this, [use, name, present] {
            use(name == present ? QString() : name);
        });
    }
    menu.addSeparator();
    QAction* const edit = menu.addAction(tr("&Edit Styles…"));
    connect(edit, &QAction::triggered, this, &TextActions::editNamedStyles);
}

QStringList TextActions::stylesInText() const
{
    QStringList names;
    for (QTextBlock block = m_page->document()->begin(); block.isValid(); block = block.next()) {
        const QString name = rich::shapeOf(block.blockFormat()).attributes.style;
        if (!name.isEmpty() && !names.contains(name))
            names.append(name);
    }
    return names;
}

void TextActions::editNamedStyles()
{
    const QString present = m_page ? m_page->currentShape().attributes.style : QString();
    NamedStylesDialog dialog(
        namedStylesFrom(m_desk.settings), m_page ? stylesInText() : QStringList(), present, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    storeNamedStyles(m_desk.settings, dialog.styles());
    emit pageStyleChanged();
}

void TextActions::addAlignments(QMenu& menu)
{
    const auto addOne = [&](const ActionText& text, QLatin1StringView align) {
        add(menu, text,
            [align](Page& page) {
                const bool isOn = page.currentShape().attributes.align == align;
                page.changeBlocks(tr("Alignment"), [align, isOn](BlockShape& shape) {
                    shape.attributes.align = isOn ? QString() : QString(align);
                });
            },
            {{}, takesAttributes, [align](const Page& page) {
                 return page.currentShape().attributes.align == align;
             }});
    };
    addOne(
        {"format.alignLeft", Icon::AlignLeft, tr("&Left"), keys(Qt::ControlModifier, Qt::Key_L)}, "left"_L1);
    addOne(
        {"format.alignCenter", Icon::AlignCenter, tr("&Centre"), keys(Qt::ControlModifier, Qt::Key_E)},
        "center"_L1);
    addOne(
        {"format.alignRight", Icon::AlignRight, tr("&Right"), keys(Qt::ControlModifier, Qt::Key_R)},
        "right"_L1);
    addOne(
        {"format.alignJustify", Icon::AlignJustify, tr("&Justified"), keys(Qt::ControlModifier, Qt::Key_J)},
        "justify"_L1);
}

void TextActions::addSpacings(QMenu& menu)
{
    struct Spacing
    {
        const char* name;
        double factor;
        QString title;
    };
    const Spacing spacings[] = {
        {"format.spacingDefault", 0, tr("As the &Page")},
        {"format.spacing1", 1, tr("&Single")},
        {"format.spacing115", 1.15, tr("&1.15 Lines")},
        {"format.spacing15", 1.5, tr("1.&5 Lines")},
        {"format.spacing2", 2, tr("&Double")},
    };
    for (const Spacing& spacing : spacings) {
        const double factor = spacing.factor;
        add(menu, {spacing.name, Icon::Columns, spacing.title},
            [factor](Page& page) {
                page.changeBlocks(
                    tr("Line spacing"), [factor](BlockShape& shape) { shape.attributes.spacing = factor; });
            },
            {{}, takesAttributes, [factor](const Page& page) {
                 return std::abs(page.currentShape().attributes.spacing - factor) < 0.001;
             }});
    }
}

void TextActions::addColors(QMenu& menu)
{
    const auto addMenu = [&](const QString& title, Icon icon, std::span<const DocumentColor> colors,
                             QString InlineAttributes::*field, const QString& label) {
        QMenu* const choices = menu.addMenu(m_desk.icons.icon(icon), title);
        const auto addChoice = [&](const QString& text, const QString& value) {
            QAction* const action = choices->addAction(text);
            connect(action, &QAction::triggered, this, [this, field, value, label] {
                if (m_page)
                    m_page->changeStyle(label, [&](RunStyle& style) { style.attributes.*field = value; });
            });
            return action;
        };
        addChoice(tr("&None"), QString());
        choices->addSeparator();
        for (const DocumentColor& color : colors)
            addChoice(tr(color.name), QString(color.value))->setIcon(swatch(color.value));
        choices->addSeparator();
        connect(choices->addAction(tr("&More…")), &QAction::triggered, this, [this, field, label] {
            if (m_page)
                chooseColor(*m_page, field, label);
        });
        m_entries.push_back({choices->menuAction(), takesInlineStyles, {}});
    };
    addMenu(tr("Te&xt Colour"), Icon::TextColor, inkColors, &InlineAttributes::color, tr("Text colour"));
    addMenu(
        tr("&Highlight"), Icon::Highlight, highlightColors, &InlineAttributes::background, tr("Highlight"));
}

void TextActions::chooseColor(Page& page, QString InlineAttributes::*field, const QString& label)
{
    const QColor present(page.currentStyle().attributes.*field);
    const QColor color =
        QColorDialog::getColor(present.isValid() ? present : QColor(Qt::red), m_window, label);
    if (color.isValid()) {
        page.changeStyle(
            label, [&](RunStyle& style) { style.attributes.*field = color.name(QColor::HexRgb); });
    }
}

void TextActions::chooseFont(Page& page)
{
    const auto attributes = page.currentStyle().attributes;
    QFont font = pageFont(page.pageStyle());
    font.setPointSizeF(page.pageStyle().fontPointSize);
    const QFont standard = font;
    if (!attributes.font.isEmpty())
        font.setFamily(attributes.font);
    if (attributes.size > 0)
        font.setPointSize(attributes.size);
    bool isAccepted = false;
    const QFont chosen = QFontDialog::getFont(&isAccepted, font, m_window, tr("Font of the Selected Text"));
    if (!isAccepted)
        return;
    page.changeStyle(tr("Font"), [&](RunStyle& style) {
        // What the page has anyway is not written into the text.
        style.attributes.font = chosen.family() == standard.family() ? QString() : chosen.family();
        const auto points = static_cast<qint32>(std::lround(chosen.pointSizeF()));
        style.attributes.size = points == std::lround(standard.pointSizeF()) ? 0 : points;
    });
}

} // namespace tw::desktop::manuscript
