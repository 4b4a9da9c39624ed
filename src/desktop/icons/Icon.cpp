#include "desktop/icons/Icon.h"

#include <array>

namespace tw::desktop::icons {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array table{
    NamedIcon{Icon::Document, "document"_L1},
    NamedIcon{Icon::Entity, "entity"_L1},
    NamedIcon{Icon::Spreadsheet, "spreadsheet"_L1},
    NamedIcon{Icon::Chart, "chart"_L1},
    NamedIcon{Icon::Map, "map"_L1},
    NamedIcon{Icon::Timeline, "timeline"_L1},
    NamedIcon{Icon::TimelineEvent, "timeline-event"_L1},
    NamedIcon{Icon::Media, "media"_L1},
    NamedIcon{Icon::Source, "source"_L1},
    NamedIcon{Icon::Task, "task"_L1},
    NamedIcon{Icon::Canvas, "canvas"_L1},
    NamedIcon{Icon::Comment, "comment"_L1},
    NamedIcon{Icon::Language, "language"_L1},
    NamedIcon{Icon::RandomTable, "random-table"_L1},
    NamedIcon{Icon::StatBlock, "stat-block"_L1},
    NamedIcon{Icon::Screenplay, "screenplay"_L1},
    NamedIcon{Icon::Note, "note"_L1},
    NamedIcon{Icon::Scene, "scene"_L1},
    NamedIcon{Icon::Manuscript, "manuscript"_L1},
    NamedIcon{Icon::Codex, "codex"_L1},
    NamedIcon{Icon::Folder, "folder"_L1},
    NamedIcon{Icon::Category, "category"_L1},
    NamedIcon{Icon::CategoryUnderEntity, "category-under-entity"_L1},
    NamedIcon{Icon::PlotThread, "plot-thread"_L1},
    NamedIcon{Icon::Add, "add"_L1},
    NamedIcon{Icon::Remove, "remove"_L1},
    NamedIcon{Icon::Minus, "minus"_L1},
    NamedIcon{Icon::Rename, "rename"_L1},
    NamedIcon{Icon::MoveUp, "move-up"_L1},
    NamedIcon{Icon::MoveDown, "move-down"_L1},
    NamedIcon{Icon::Undo, "undo"_L1},
    NamedIcon{Icon::Redo, "redo"_L1},
    NamedIcon{Icon::Cut, "cut"_L1},
    NamedIcon{Icon::Copy, "copy"_L1},
    NamedIcon{Icon::Paste, "paste"_L1},
    NamedIcon{Icon::Save, "save"_L1},
    NamedIcon{Icon::Open, "open"_L1},
    NamedIcon{Icon::New, "new"_L1},
    NamedIcon{Icon::Import, "import"_L1},
    NamedIcon{Icon::Export, "export"_L1},
    NamedIcon{Icon::Refresh, "refresh"_L1},
    NamedIcon{Icon::Search, "search"_L1},
    NamedIcon{Icon::Filter, "filter"_L1},
    NamedIcon{Icon::Settings, "settings"_L1},
    NamedIcon{Icon::Close, "close"_L1},
    NamedIcon{Icon::More, "more"_L1},
    NamedIcon{Icon::Menu, "menu"_L1},
    NamedIcon{Icon::Drag, "drag"_L1},
    NamedIcon{Icon::Pin, "pin"_L1},
    NamedIcon{Icon::Lock, "lock"_L1},
    NamedIcon{Icon::Unlock, "unlock"_L1},
    NamedIcon{Icon::Eye, "eye"_L1},
    NamedIcon{Icon::EyeOff, "eye-off"_L1},
    NamedIcon{Icon::Ai, "ai"_L1},
    NamedIcon{Icon::HideFromAi, "hide-from-ai"_L1},
    NamedIcon{Icon::Inherited, "inherited"_L1},
    NamedIcon{Icon::Fixed, "fixed"_L1},
    NamedIcon{Icon::OwnField, "own-field"_L1},
    NamedIcon{Icon::Date, "date"_L1},
    NamedIcon{Icon::Reference, "reference"_L1},
    NamedIcon{Icon::Choice, "choice"_L1},
    NamedIcon{Icon::Url, "url"_L1},
    NamedIcon{Icon::Link, "link"_L1},
    NamedIcon{Icon::Number, "number"_L1},
    NamedIcon{Icon::Text, "text"_L1},
    NamedIcon{Icon::Boolean, "boolean"_L1},
    NamedIcon{Icon::Palette, "palette"_L1},
    NamedIcon{Icon::Theme, "theme"_L1},
    NamedIcon{Icon::Sun, "sun"_L1},
    NamedIcon{Icon::Moon, "moon"_L1},
    NamedIcon{Icon::Inspector, "inspector"_L1},
    NamedIcon{Icon::Columns, "columns"_L1},
    NamedIcon{Icon::Layout, "layout"_L1},
    NamedIcon{Icon::Split, "split"_L1},
    NamedIcon{Icon::Undock, "undock"_L1},
    NamedIcon{Icon::Focus, "focus"_L1},
    NamedIcon{Icon::FullScreen, "full-screen"_L1},
    NamedIcon{Icon::Snapshot, "snapshot"_L1},
    NamedIcon{Icon::History, "history"_L1},
    NamedIcon{Icon::Bold, "bold"_L1},
    NamedIcon{Icon::Italic, "italic"_L1},
    NamedIcon{Icon::Underline, "underline"_L1},
    NamedIcon{Icon::Strikethrough, "strikethrough"_L1},
    NamedIcon{Icon::Superscript, "superscript"_L1},
    NamedIcon{Icon::Subscript, "subscript"_L1},
    NamedIcon{Icon::BulletList, "bullet-list"_L1},
    NamedIcon{Icon::NumberedList, "numbered-list"_L1},
    NamedIcon{Icon::Quotation, "quotation"_L1},
    NamedIcon{Icon::Indent, "indent"_L1},
    NamedIcon{Icon::Outdent, "outdent"_L1},
    NamedIcon{Icon::AlignLeft, "align-left"_L1},
    NamedIcon{Icon::AlignCenter, "align-center"_L1},
    NamedIcon{Icon::AlignRight, "align-right"_L1},
    NamedIcon{Icon::AlignJustify, "align-justify"_L1},
    NamedIcon{Icon::TextColor, "text-color"_L1},
    NamedIcon{Icon::Highlight, "highlight"_L1},
    NamedIcon{Icon::ClearFormat, "clear-format"_L1},
    NamedIcon{Icon::Table, "table"_L1},
    NamedIcon{Icon::Footnote, "footnote"_L1},
    NamedIcon{Icon::PageBreak, "page-break"_L1},
    NamedIcon{Icon::Rule, "rule"_L1},
    NamedIcon{Icon::Warning, "warning"_L1},
    NamedIcon{Icon::Error, "error"_L1},
    NamedIcon{Icon::Information, "information"_L1},
    NamedIcon{Icon::Help, "help"_L1},
    NamedIcon{Icon::Check, "check"_L1},
    NamedIcon{Icon::ChevronUp, "chevron-up"_L1},
    NamedIcon{Icon::ChevronDown, "chevron-down"_L1},
    NamedIcon{Icon::ChevronLeft, "chevron-left"_L1},
    NamedIcon{Icon::ChevronRight, "chevron-right"_L1},
    NamedIcon{Icon::WordCount, "word-count"_L1},
    NamedIcon{Icon::Target, "target"_L1},
};

// iconName() goes by position.
constexpr bool isInOrder()
{
    for (std::size_t index = 0; index < table.size(); ++index) {
        if (static_cast<std::size_t>(table[index].icon) != index)
            return false;
    }
    return true;
}
static_assert(isInOrder());

} // namespace

std::span<const NamedIcon> allIcons()
{
    return table;
}

QLatin1String iconName(Icon icon)
{
    return table[static_cast<std::size_t>(icon)].name;
}

Icon iconForKind(core::content::ContentKind kind)
{
    using core::content::ContentKind;
    switch (kind) {
    case ContentKind::Document:
        return Icon::Document;
    case ContentKind::Entity:
        return Icon::Entity;
    case ContentKind::Spreadsheet:
        return Icon::Spreadsheet;
    case ContentKind::Chart:
        return Icon::Chart;
    case ContentKind::Map:
        return Icon::Map;
    case ContentKind::Timeline:
        return Icon::Timeline;
    case ContentKind::TimelineEvent:
        return Icon::TimelineEvent;
    case ContentKind::Media:
        return Icon::Media;
    case ContentKind::Source:
        return Icon::Source;
    case ContentKind::Task:
        return Icon::Task;
    case ContentKind::Canvas:
        return Icon::Canvas;
    case ContentKind::Comment:
        return Icon::Comment;
    case ContentKind::Language:
        return Icon::Language;
    case ContentKind::RandomTable:
        return Icon::RandomTable;
    case ContentKind::StatBlock:
        return Icon::StatBlock;
    }
    return Icon::Document;
}

} // namespace tw::desktop::icons
