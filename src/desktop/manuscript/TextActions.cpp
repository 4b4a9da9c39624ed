#include "desktop/manuscript/TextActions.h"

#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/TextPage.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <chrono>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/** Marks follow the cursor once it rests: nothing of it is done while a key is on its way. */
constexpr auto refreshRest = 60ms;

constexpr int styleButtonCharacters = 14;

} // namespace

QString TextActions::styleTitle(const rich::BlockShape& shape)
{
    if (!shape.attributes.style.isEmpty())
        return namedStyleTitle(shape.attributes.style);
    switch (shape.kind) {
    case BlockKind::Paragraph:
    case BlockKind::Rule:
        return tr("Body");
    case BlockKind::Heading:
        return tr("Heading %1").arg(shape.level);
    case BlockKind::BulletItem:
    case BlockKind::NumberedItem:
        return tr("List");
    case BlockKind::Quotation:
        return tr("Quotation");
    case BlockKind::Code:
        return tr("Code");
    case BlockKind::Table:
        return tr("Table");
    case BlockKind::FootnoteDefinition:
        return tr("Footnote");
    }
    return {};
}

TextActions::TextActions(const shell::DeskContext& desk, QWidget* window)
    : QObject(window)
    , m_desk(desk)
    , m_window(window)
{
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(refreshRest);
    connect(&m_refresh, &QTimer::timeout, this, &TextActions::refresh);
}

TextActions::~TextActions() = default;

QAction* TextActions::add(
    QMenu& menu, const ActionText& text, std::function<void(Page&)> handler, TextAction entry)
{
    QAction* const action = menu.addAction(m_desk.icons.icon(text.icon), text.text);
    action->setObjectName(QLatin1String(text.name));
    action->setShortcut(text.keys);
    action->setCheckable(static_cast<bool>(entry.isOn));
    action->setEnabled(false);
    connect(action, &QAction::triggered, this, [this, handler = std::move(handler)] {
        if (m_page)
            handler(*m_page);
        refreshNow();
    });
    entry.action = action;
    m_entries.push_back(std::move(entry));
    return action;
}

void TextActions::setPage(TextPage* page)
{
    if (page == m_textPage)
        return;
    if (m_textPage)
        disconnect(m_textPage, nullptr, this, nullptr);
    m_textPage = page;
    if (page)
        connect(page, &TextPage::editorChanged, this, &TextActions::followEditor);
    followEditor();
}

void TextActions::followEditor()
{
    if (m_page)
        disconnect(m_page, nullptr, this, nullptr);
    m_page = m_textPage ? m_textPage->richPage() : nullptr;
    if (m_page) {
        const auto soon = [this] { m_refresh.start(); };
        connect(m_page, &QTextEdit::cursorPositionChanged, this, soon);
        connect(m_page, &QTextEdit::selectionChanged, this, soon);
        connect(m_page, &QTextEdit::currentCharFormatChanged, this, soon);
        connect(m_page, &BodyEditor::edited, this, soon);
    }
    emit availableChanged(m_page != nullptr);
    refreshNow();
}

void TextActions::refreshNow()
{
    m_refresh.stop();
    refresh();
}

void TextActions::refresh()
{
    const bool isWritable = m_page && !m_page->isReadOnly();
    for (const TextAction& entry : m_entries) {
        entry.action->setEnabled(isWritable && (!entry.isPossible || entry.isPossible(*m_page)));
        if (entry.isOn)
            entry.action->setChecked(m_page && entry.isOn(*m_page));
    }
    if (m_styleButton && m_page)
        m_styleButton->setText(styleTitle(m_page->currentShape()));
}

void TextActions::fillBar(QToolBar& bar)
{
    const auto action = [this](QLatin1StringView name) {
        for (const TextAction& entry : m_entries) {
            if (entry.action->objectName() == name)
                return entry.action;
        }
        Q_UNREACHABLE();
    };
    m_styleButton = new QToolButton(&bar);
    m_styleButton->setObjectName(u"paragraphStyle"_s);
    m_styleButton->setMenu(m_paragraphStyles);
    m_styleButton->setPopupMode(QToolButton::InstantPopup);
    m_styleButton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_styleButton->setFocusPolicy(Qt::NoFocus);
    m_styleButton->setMinimumWidth(m_styleButton->fontMetrics().averageCharWidth() * styleButtonCharacters);
    m_styleButton->setAccessibleName(tr("Paragraph style"));
    bar.addWidget(m_styleButton);
    bar.addSeparator();
    static constexpr QLatin1StringView separator{};
    for (const QLatin1StringView name :
         {"format.bold"_L1,
          "format.italic"_L1,
          "format.underline"_L1,
          "format.strikethrough"_L1,
          separator,
          "format.bulletList"_L1,
          "format.numberedList"_L1,
          "format.quotation"_L1,
          "format.outdent"_L1,
          "format.indent"_L1,
          separator,
          "format.alignLeft"_L1,
          "format.alignCenter"_L1,
          "format.alignRight"_L1,
          "format.alignJustify"_L1,
          separator,
          "insert.link"_L1,
          "insert.footnote"_L1,
          "insert.image"_L1,
          "insert.rule"_L1,
          separator,
          "format.clear"_L1}) {
        if (name == separator) {
            bar.addSeparator();
            continue;
        }
        bar.addAction(action(name));
        // Reached by Tab from the page would be in the writer's way; the menus do the same by keyboard.
        bar.widgetForAction(action(name))->setFocusPolicy(Qt::NoFocus);
    }
}

} // namespace tw::desktop::manuscript
