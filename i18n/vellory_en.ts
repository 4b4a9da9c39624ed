<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CrashRecovery</name>
    <message numerus="yes">
        <source>Vellory did not end properly the last time. Changes to %n items of “%1” were noted, but not saved. Bring them back?</source>
        <translation>
            <numerusform>Vellory did not end properly the last time. Changes to %n item of “%1” were noted, but not saved. Bring them back?</numerusform>
            <numerusform>Vellory did not end properly the last time. Changes to %n items of “%1” were noted, but not saved. Bring them back?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them have changed on disk since then, too. Your version takes their place; the project as it is on disk is backed up first.</source>
        <translation>
            <numerusform>%n of them has changed on disk since then, too. Your version takes its place; the project as it is on disk is backed up first.</numerusform>
            <numerusform>%n of them have changed on disk since then, too. Your version takes their place; the project as it is on disk is backed up first.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PackTransfer</name>
    <message numerus="yes">
        <source>Added %n categories: %1</source>
        <translation>
            <numerusform>Added %n category: %1</numerusform>
            <numerusform>Added %n categories: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out %n categories that are here already: %1</source>
        <translation>
            <numerusform>Left out %n category that is here already: %1</numerusform>
            <numerusform>Left out %n categories that are here already: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Spreadsheet</name>
    <message numerus="yes">
        <source>%1 does not take %n argument(s).</source>
        <translation>
            <numerusform>%1 does not take one argument.</numerusform>
            <numerusform>%1 does not take %n arguments.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WordsSuffix</name>
    <message numerus="yes">
        <source> words</source>
        <translation>
            <numerusform> word</numerusform>
            <numerusform> words</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message numerus="yes">
        <source>%n item(s) stand under themselves or under something that is missing; they are shown at the top level.</source>
        <translation>
            <numerusform>%n item stands under itself or under something that is missing; it is shown at the top level.</numerusform>
            <numerusform>%n items stand under themselves or under something that is missing; they are shown at the top level.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::calendar::CalendarForm</name>
    <message numerus="yes">
        <source>%n days a year. Year 1 begins on %1, %2.</source>
        <translation>
            <numerusform>%n day a year. Year 1 begins on %1, %2.</numerusform>
            <numerusform>%n days a year. Year 1 begins on %1, %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::CodexPanel</name>
    <message numerus="yes">
        <source>Removed %n things from the codex. Undo brings them back.</source>
        <translation>
            <numerusform>Removed %n thing from the codex. Undo brings it back.</numerusform>
            <numerusform>Removed %n things from the codex. Undo brings them back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n categories? Their entities move up to the parent. Edit › Undo will restore them.</source>
        <translation>
            <numerusform>Delete %n category? Its entities move up to the parent. Edit › Undo will restore it.</numerusform>
            <numerusform>Delete %n categories? Their entities move up to the parent. Edit › Undo will restore them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::MentionsSection</name>
    <message numerus="yes">
        <source>%n times</source>
        <translation>
            <numerusform>once</numerusform>
            <numerusform>%n times</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::PropertyCleanUpDialog</name>
    <message numerus="yes">
        <source>%n more can be put in order once their entities are unlocked.</source>
        <translation>
            <numerusform>%n more can be put in order once its entity is unlocked.</numerusform>
            <numerusform>%n more can be put in order once their entities are unlocked.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entities move</source>
        <translation>
            <numerusform>%n entity moves</numerusform>
            <numerusform>%n entities move</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::composition::CompositionPage</name>
    <message numerus="yes">
        <source>%Ln words</source>
        <translation>
            <numerusform>%Ln word</numerusform>
            <numerusform>%Ln words</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::goals::GoalsDialog</name>
    <message numerus="yes">
        <source>Words on %Ln days in a row.</source>
        <translation>
            <numerusform>Words on %Ln day in a row.</numerusform>
            <numerusform>Words on %Ln days in a row.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln words written, %1 of them today.</source>
        <translation>
            <numerusform>%Ln word written, %1 of them today.</numerusform>
            <numerusform>%Ln words written, %1 of them today.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The deadline has passed with %Ln words to go.</source>
        <translation>
            <numerusform>The deadline has passed with %Ln word to go.</numerusform>
            <numerusform>The deadline has passed with %Ln words to go.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 a day for %Ln days.</source>
        <translation>
            <numerusform>%1: %2 a day for %Ln day.</numerusform>
            <numerusform>%1: %2 a day for %Ln days.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln words to go</source>
        <translation>
            <numerusform>%Ln word to go</numerusform>
            <numerusform>%Ln words to go</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln words to go.</source>
        <translation>
            <numerusform>%Ln word to go.</numerusform>
            <numerusform>%Ln words to go.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::goals::ProgressChart</name>
    <message numerus="yes">
        <source>%Ln words</source>
        <translation>
            <numerusform>%Ln word</numerusform>
            <numerusform>%Ln words</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln days</source>
        <translation>
            <numerusform>%1 in %Ln day</numerusform>
            <numerusform>%1 in %Ln days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln words</source>
        <translation>
            <numerusform>%1: %Ln word</numerusform>
            <numerusform>%1: %Ln words</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::DocumentActions</name>
    <message numerus="yes">
        <source>Removed %n documents with all that was in them. Undo brings them back.</source>
        <translation>
            <numerusform>Removed %n document with all that was in it. Undo brings it back.</numerusform>
            <numerusform>Removed %n documents with all that was in them. Undo brings them back.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::DocumentPage</name>
    <message numerus="yes">
        <source>%1 of %Ln words</source>
        <translation>
            <numerusform>%1 of %Ln word</numerusform>
            <numerusform>%1 of %Ln words</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln words</source>
        <translation>
            <numerusform>%Ln word</numerusform>
            <numerusform>%Ln words</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln words selected</source>
        <translation>
            <numerusform>%1 of %Ln word selected</numerusform>
            <numerusform>%1 of %Ln words selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages</source>
        <translation>
            <numerusform>%Ln page</numerusform>
            <numerusform>%Ln pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::FindBar</name>
    <message numerus="yes">
        <source>More than %Ln places</source>
        <translation>
            <numerusform>More than %Ln place</numerusform>
            <numerusform>More than %Ln places</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln places</source>
        <translation>
            <numerusform>%Ln place</numerusform>
            <numerusform>%Ln places</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Replaced %Ln places.</source>
        <translation>
            <numerusform>Replaced %Ln place.</numerusform>
            <numerusform>Replaced %Ln places.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::TextActions</name>
    <message numerus="yes">
        <source>New Table with &amp;%n Columns</source>
        <translation>
            <numerusform>Neue Tabelle mit &amp;%n Spalte</numerusform>
            <numerusform>Neue Tabelle mit &amp;%n Spalten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::overview::CardDelegate</name>
    <message numerus="yes">
        <source>%Ln words</source>
        <translation>
            <numerusform>%Ln word</numerusform>
            <numerusform>%Ln words</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::overview::OverviewPage</name>
    <message numerus="yes">
        <source>%n documents</source>
        <translation>
            <numerusform>%n document</numerusform>
            <numerusform>%n documents</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::problems::ProblemsModel</name>
    <message numerus="yes">
        <source>%Ln more. Settle these first, or hide kinds.</source>
        <translation>
            <numerusform>%Ln more. Settle these first, or hide kinds.</numerusform>
            <numerusform>%Ln more. Settle these first, or hide kinds.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::problems::ProblemsPanel</name>
    <message numerus="yes">
        <source>%Ln problems</source>
        <translation>
            <numerusform>%Ln problem</numerusform>
            <numerusform>%Ln problems</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::project::ExportPackDialog</name>
    <message numerus="yes">
        <source>%n categories go into the pack, those that they need included.</source>
        <translation>
            <numerusform>%n category goes into the pack.</numerusform>
            <numerusform>%n categories go into the pack, those that they need included.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::project::ProjectSettingsDialog</name>
    <message numerus="yes">
        <source>“%1” is an audience of %n things.</source>
        <translation>
            <numerusform>“%1” is an audience of %n thing.</numerusform>
            <numerusform>“%1” is an audience of %n things.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them name no other audience, so everyone would see them.</source>
        <translation>
            <numerusform>%n of them names no other audience, so everyone would see it.</numerusform>
            <numerusform>%n of them name no other audience, so everyone would see them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::review::ExternalChanges</name>
    <message numerus="yes">
        <source>%n project file(s) changed outside Vellory since you opened it, and you have no unsaved edits here. Load the on-disk version now?</source>
        <translation>
            <numerusform>%n project file changed outside Vellory since you opened it, and you have no unsaved edits here. Load the on-disk version now?</numerusform>
            <numerusform>%n project files changed outside Vellory since you opened it, and you have no unsaved edits here. Load the on-disk version now?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) changed outside Vellory and can be merged with your unsaved edits here. Merge and reload now? Your current project is backed up first.</source>
        <translation>
            <numerusform>%n file changed outside Vellory and can be merged with your unsaved edits here. Merge and reload now? Your current project is backed up first.</numerusform>
            <numerusform>%n files changed outside Vellory and can be merged with your unsaved edits here. Merge and reload now? Your current project is backed up first.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of them conflict with unsaved edits here and can&apos;t be merged automatically. Take the on-disk version (discarding your unsaved edits), or keep yours (your next save overwrites the on-disk changes)?</source>
        <translation>
            <numerusform>%n of them conflicts with unsaved edits here and can&apos;t be merged automatically. Take the on-disk version (discarding your unsaved edits), or keep yours (your next save overwrites the on-disk changes)?</numerusform>
            <numerusform>%n of them conflict with unsaved edits here and can&apos;t be merged automatically. Take the on-disk version (discarding your unsaved edits), or keep yours (your next save overwrites the on-disk changes)?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n media file(s) in the project changed on disk (added, replaced, or removed by a co-author or sync client). Save or reopen the project to use the updated assets.</source>
        <translation>
            <numerusform>%n media file in the project changed on disk (added, replaced, or removed by a co-author or sync client). Save or reopen the project to use the updated assets.</numerusform>
            <numerusform>%n media files in the project changed on disk (added, replaced, or removed by a co-author or sync client). Save or reopen the project to use the updated assets.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n media file(s) in the project changed on disk (added, replaced, or removed by a co-author or sync client). Reload the project to use them?</source>
        <translation>
            <numerusform>%n media file in the project changed on disk (added, replaced, or removed by a co-author or sync client). Reload the project to use it?</numerusform>
            <numerusform>%n media files in the project changed on disk (added, replaced, or removed by a co-author or sync client). Reload the project to use them?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::review::ResolveDialog</name>
    <message numerus="yes">
        <source>%n file(s) changed both on disk and in this window over the same lines and can&apos;t be merged automatically. Choose which version to keep for each.</source>
        <translation>
            <numerusform>%n file changed both on disk and in this window over the same lines and can&apos;t be merged automatically. Choose which version to keep.</numerusform>
            <numerusform>%n files changed both on disk and in this window over the same lines and can&apos;t be merged automatically. Choose which version to keep for each.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n other external change(s) will be merged in automatically.</source>
        <translation>
            <numerusform>%n other external change will be merged in automatically.</numerusform>
            <numerusform>%n other external changes will be merged in automatically.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::review::ReviewNotice</name>
    <message numerus="yes">
        <source>%n project file(s) changed outside Vellory since you opened it.</source>
        <translation>
            <numerusform>%n project file changed outside Vellory since you opened it.</numerusform>
            <numerusform>%n project files changed outside Vellory since you opened it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n media file(s) in the project changed on disk.</source>
        <translation>
            <numerusform>%n media file in the project changed on disk.</numerusform>
            <numerusform>%n media files in the project changed on disk.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::search::SearchModel</name>
    <message numerus="yes">
        <source>%1, %n matches</source>
        <translation>
            <numerusform>%1, %n match</numerusform>
            <numerusform>%1, %n matches</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::search::SearchPanel</name>
    <message numerus="yes">
        <source>%n matches replaced.</source>
        <translation>
            <numerusform>%n match replaced.</numerusform>
            <numerusform>%n matches replaced.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n locked documents were left alone.</source>
        <translation>
            <numerusform>%n locked document was left alone.</numerusform>
            <numerusform>%n locked documents were left alone.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n documents changed since the search and were left alone; look at them again.</source>
        <translation>
            <numerusform>%n document changed since the search and was left alone; look at it again.</numerusform>
            <numerusform>%n documents changed since the search and were left alone; look at them again.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n match</numerusform>
            <numerusform>%n matches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n documents</source>
        <comment>after a number of matches</comment>
        <translation>
            <numerusform>in %n document</numerusform>
            <numerusform>in %n documents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n matches stand across marks and were left alone; change them in the text.</source>
        <translation>
            <numerusform>%n match stands across marks and was left alone; change it in the text.</numerusform>
            <numerusform>%n matches stand across marks and were left alone; change them in the text.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::MainWindow</name>
    <message numerus="yes">
        <source>The story has %Ln conflicts.</source>
        <translation>
            <numerusform>The story has %Ln conflict.</numerusform>
            <numerusform>The story has %Ln conflicts.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::StatusStrip</name>
    <message numerus="yes">
        <source>Manuscript: %Ln words</source>
        <translation>
            <numerusform>Manuscript: %Ln word</numerusform>
            <numerusform>Manuscript: %Ln words</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln words of the daily target</source>
        <translation>
            <numerusform>%1 of %Ln word of the daily target</numerusform>
            <numerusform>%1 of %Ln words of the daily target</numerusform>
        </translation>
    </message>
</context>
</TS>
