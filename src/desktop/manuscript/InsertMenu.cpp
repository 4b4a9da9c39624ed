// The actions of the Insert menu that put something into the text.
#include "desktop/manuscript/TextActions.h"

#include "core/document/DocumentCommands.h"
#include "desktop/fields/ImageFiles.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/Footnotes.h"
#include "desktop/manuscript/TextPage.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMenu>

namespace tw::desktop::manuscript {

using core::document::markup::BlockKind;
using icons::Icon;
using TableEdit = rich::RichPage::TableEdit;

namespace {

constexpr int newTableRows = 3;
constexpr int fewestColumns = 2;
constexpr int mostColumns = 6;

bool isOutsideTable(const rich::RichPage& page)
{
    return !page.isInTable();
}

bool isInTable(const rich::RichPage& page)
{
    return page.isInTable();
}

bool takesText(const rich::RichPage& page)
{
    return page.currentShape().kind != BlockKind::Code;
}

} // namespace

void TextActions::fillInsertMenu(QMenu& menu)
{
    add(menu, {"insert.image", Icon::Media, tr("I&mage…")}, [this](Page& page) { chooseImage(page); },
        {{}, takesText, {}});
    addTableActions(menu);
    add(menu,
        {"insert.rule", Icon::Rule, tr("S&cene Break"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Return)},
        [](Page& page) { page.insertRule(); }, {{}, isOutsideTable, {}});
    add(menu,
        {"insert.pageBreak", Icon::PageBreak, tr("&Page Break"), QKeySequence(Qt::CTRL | Qt::Key_Return)},
        [](Page& page) { page.insertPageBreak(); }, {{}, isOutsideTable, {}});
    menu.addSeparator();
    add(menu, {"insert.link", Icon::Link, tr("&Link…"), QKeySequence(Qt::CTRL | Qt::Key_K)},
        [this](Page& page) { chooseLink(page); }, {{}, takesText, {}});
    add(menu,
        {"insert.footnote", Icon::Footnote, tr("&Footnote"), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_F)},
        [this](Page& page) { addNote(page, false); }, {{}, takesText, {}});
    add(menu,
        {"insert.endnote", Icon::Footnote, tr("&Endnote"), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_D)},
        [this](Page& page) { addNote(page, true); }, {{}, takesText, {}});
}

void TextActions::addTableActions(QMenu& menu)
{
    QMenu* const table = menu.addMenu(m_desk.icons.icon(Icon::Table), tr("&Table"));
    for (int columns = fewestColumns; columns <= mostColumns; ++columns) {
        QAction* const action = table->addAction(tr("New Table with &%n Columns", nullptr, columns));
        connect(action, &QAction::triggered, this, [this, columns] {
            if (m_page)
                m_page->insertTable(newTableRows, columns);
        });
        m_entries.push_back({action, isOutsideTable, {}});
    }
    table->addSeparator();
    const auto addEdit = [&](const ActionText& text, TableEdit edit, const QString& label) {
        add(*table, text, [edit, label](Page& page) { page.editTable(edit, label); }, {{}, isInTable, {}});
    };
    addEdit({"table.rowAbove", Icon::MoveUp, tr("Insert Row &Above")}, TableEdit::RowAbove, tr("Insert row"));
    addEdit(
        {"table.rowBelow", Icon::MoveDown, tr("Insert Row &Below")}, TableEdit::RowBelow, tr("Insert row"));
    addEdit(
        {"table.columnBefore", Icon::ChevronLeft, tr("Insert Column B&efore")}, TableEdit::ColumnBefore,
        tr("Insert column"));
    addEdit(
        {"table.columnAfter", Icon::ChevronRight, tr("Insert Column A&fter")}, TableEdit::ColumnAfter,
        tr("Insert column"));
    table->addSeparator();
    addEdit({"table.removeRow", Icon::Minus, tr("Remove &Row")}, TableEdit::RemoveRow, tr("Remove row"));
    addEdit(
        {"table.removeColumn", Icon::Minus, tr("Remove C&olumn")}, TableEdit::RemoveColumn,
        tr("Remove column"));
    addEdit({"table.remove", Icon::Remove, tr("Remove &Table")}, TableEdit::RemoveTable, tr("Remove table"));
}

void TextActions::chooseImage(Page& page)
{
    const QString file = QFileDialog::getOpenFileName(
        m_window, tr("Insert an Image"), QString(), tr("Images (%1)").arg(fields::imageNamePatterns()));
    if (file.isEmpty())
        return;
    const auto imported = m_desk.session.importAsset(file);
    if (!imported) {
        m_desk.navigator.say(imported.message());
        return;
    }
    page.insertImage(imported.value(), QFileInfo(file).completeBaseName());
}

void TextActions::chooseLink(Page& page)
{
    bool isAccepted = false;
    const QString target = QInputDialog::getText(
        m_window, tr("Link"), tr("Address the text leads to (empty removes the link):"), QLineEdit::Normal,
        page.currentStyle().link, &isAccepted);
    if (isAccepted)
        page.setLink(target.trimmed());
}

void TextActions::addNote(Page& page, bool isEndnote)
{
    if (!m_textPage)
        return;
    const QString label = insertNote(m_desk.session, page, isEndnote);
    if (!label.isEmpty())
        m_textPage->showNote(label);
}

} // namespace tw::desktop::manuscript
