#pragma once

#include "core/content/ContentKind.h"

#include <QLatin1String>

#include <span>

namespace tw::desktop::icons {

/** Every icon of the program's own family, drawn as lines in svg/<name>.svg. */
enum class Icon
{
    // Kinds of objects
    Document,
    Entity,
    Spreadsheet,
    Chart,
    Map,
    Timeline,
    TimelineEvent,
    Media,
    Source,
    Task,
    Canvas,
    Comment,
    Language,
    RandomTable,
    StatBlock,
    // Shapes and places of them
    Screenplay,
    Note,
    Scene,
    Manuscript,
    Codex,
    Folder,
    Category,
    CategoryUnderEntity,
    PlotThread,
    // Actions
    Add,
    Remove,
    Minus,
    Rename,
    MoveUp,
    MoveDown,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    Save,
    Open,
    New,
    Import,
    Export,
    Refresh,
    // Marks and controls
    Search,
    Filter,
    Settings,
    Close,
    More,
    Menu,
    Drag,
    Pin,
    Lock,
    Unlock,
    Eye,
    EyeOff,
    Ai,
    HideFromAi,
    // Where a value comes from and of what type it is
    Inherited,
    Fixed,
    OwnField,
    Date,
    Reference,
    Choice,
    Url,
    Link,
    Number,
    Text,
    Boolean,
    // The window
    Palette,
    Theme,
    Sun,
    Moon,
    Inspector,
    Columns,
    Layout,
    Split,
    Undock,
    Focus,
    FullScreen,
    Snapshot,
    History,
    // Text and how it is set
    Bold,
    Italic,
    Underline,
    Strikethrough,
    Superscript,
    Subscript,
    BulletList,
    NumberedList,
    Quotation,
    Indent,
    Outdent,
    AlignLeft,
    AlignCenter,
    AlignRight,
    AlignJustify,
    TextColor,
    Highlight,
    ClearFormat,
    Table,
    Footnote,
    PageBreak,
    Rule,
    // States and small signs
    Warning,
    Error,
    Information,
    Help,
    Check,
    ChevronUp,
    ChevronDown,
    ChevronLeft,
    ChevronRight,
    WordCount,
    Target,
};

struct NamedIcon
{
    Icon icon;
    QLatin1String name; // of its file, and in plain texts such as a tool bar's stored configuration
};

/** All icons with their names, in the order of Icon. */
[[nodiscard]] std::span<const NamedIcon> allIcons();

[[nodiscard]] QLatin1String iconName(Icon icon);

/** The icon that stands for a kind of object wherever it is listed. */
[[nodiscard]] Icon iconForKind(core::content::ContentKind kind);

} // namespace tw::desktop::icons
