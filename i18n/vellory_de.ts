<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CalendarRules</name>
    <message>
        <source>A calendar needs at least one month.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every month needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every month needs a length of at least one day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A calendar needs at least one weekday.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every era needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every era needs a whole-number start year.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryProperties</name>
    <message>
        <source>There is another property with the key “%1” here. Give this one another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A choice needs something to choose from. Write one choice on each line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” already comes from above. This category gets its own version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” already comes from the category “%2”. This category and what is beneath it get their own version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit properties</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CodexEdits</name>
    <message>
        <source>Remove entity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove from the codex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move entity to category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move in the codex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add entity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate entity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add category</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldGroups</name>
    <message>
        <source>Through %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties that cross from the entity this category hangs under.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties of this entity alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values that a category supplies to everything beneath it. Change them there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inherited from the category “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Declared by the category “%1”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (from %2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldRow</name>
    <message>
        <source>Fixed by the category “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed by its category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Still to be filled in</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ManuscriptEdits</name>
    <message>
        <source>Add document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove document</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ObjectTitles</name>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
</context>
<context>
    <name>OwnFieldEdits</name>
    <message>
        <source>The entity is gone. Leave this without saving.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Property of “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values already entered are kept — but nothing will show them. Undo puts the property back with its data.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Persistence</name>
    <message>
        <source>Save the project to a folder before backing it up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not create a backup of the project.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a valid Vellory project file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not read a project file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file has a name that cannot be kept in a project file. Rename it, then try again: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder is not an Vellory project (no project.json): %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not write the project file (it may be locked by another program -- the desktop app, a sync client, or antivirus): %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The extraction folder is not empty: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not create the folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not write a project file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open the project file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Malformed category file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Malformed field in category: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Malformed object file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate object id %1 in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid JSON in file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No project directory to import into</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source file does not exist: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create assets folder in: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot copy file into assets: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not write &apos;%1&apos; (it may be locked by another program -- the desktop app, a sync client, or antivirus).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project changed on disk since it was opened, so saving now would overwrite those changes. Review them first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 is a link that leads out of the project. Put a real folder in its place, then save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create taxonomy folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not remove &apos;%1&apos; (it may be locked by another program -- the desktop app, a sync client, or antivirus).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create the folder for locks: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program is saving this project right now: %1. Try again in a moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The compressed data is damaged or incomplete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is too short to be an archive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not an archive, or its end is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive is damaged: its entries overlap.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive holds two entries of the same name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive is encrypted, split, or packed in a way that cannot be read. Pack it again as a plain ZIP archive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive claims to hold far more than it can.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive is damaged: a checksum is wrong.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive would be larger than 4 GiB. Remove some large files, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The path of a file is too long for an archive: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An archive can hold at most 65,535 files. Remove some files, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The archive could not be written. Check that there is room on the disk.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished">Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished">Schließen</translation>
    </message>
</context>
<context>
    <name>Taxonomy</name>
    <message>
        <source>“%1” is a fixed property of the category “%2”, which supplies its value for everything beneath it. An entity cannot hold its own — change it on the category, or give this one a differently-named property.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” already comes from the category “%2”. Adding it here gives this entity its own version, which overrides the inherited one for it alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reparenting there would create a cycle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot reparent an unknown category.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A category can only hang under an entity of this project. Choose another place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” lies beneath the category “%2”, so the category cannot hang under it. Move the entity to another category first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A field needs a key. Give it a name first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A field cannot be both &quot;fixed&quot; and &quot;required&quot;: a fixed field&apos;s value is supplied once by the category, so there is nothing for an entity to be required to fill in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot reparent under an unknown category.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
</context>
<context>
    <name>UndoCommand</name>
    <message>
        <source>Set calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set reckonings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect cards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnect cards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit grammar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit orthography</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit phonotactics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit sound changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit writing system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set visibility</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set AI exclusion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit audiences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the default audience</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit document body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change document kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit synopsis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit point of view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit tension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set scene date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set word-count target</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit footnotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cite source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit document variants</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit version history</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark screenplay revision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename entity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move entity to category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set aliases</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set entity gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit lifespan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change entity properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set state over time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update entity templates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set field value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set map image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit map grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit map pins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit map regions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit map routes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit map tokens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set map travel settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add annotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove annotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit plot threads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit beat sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tag plot threads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update saved searches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update mounted libraries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record property migration answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bind spreadsheet to category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit task details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reopen task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change task due date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change task priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change task status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move task to board</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change submission details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move category under entity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set inherited properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set excluded properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename timeline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit timeline event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set timeline eras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set timeline markers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set timeline bookmarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change timeline view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update timeline view presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set continuity rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit random table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit stat block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set writing goal</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ValueText</name>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>The project could not be found: %1</source>
        <translation>Das Projekt wurde nicht gefunden: %1</translation>
    </message>
    <message>
        <source>This is no project: %1. Choose a project folder, the one that holds project.json.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file project.json is missing in %1. If a sync client is still at work there, wait until it is done; otherwise bring the file back from a backup, or put an empty one with {} in its place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 holds no project. Choose the folder that holds project.json, or make a new project.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not copy &apos;%1&apos; to the new place. Free some space or choose another folder, then save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This project has no save location yet; use saveAs().</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 already holds a project. Choose an empty folder or a new name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This project has no save location to reload from.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project cannot be read anew while a change is under way. Try again in a moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The library %1 could not be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::CategoryChooser</name>
    <message>
        <source>Find a category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No category</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::CategoryPropertiesDialog</name>
    <message>
        <source>fixed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties of “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties declared here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Entfe&amp;rnen</translation>
    </message>
    <message>
        <source>Properties taken from “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inherited properties to leave out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A category under an entity starts with NO inherited properties — nothing crosses from an entity unless the category asks for it. Tick what it asks for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ticking a property hides it; values already entered stay exactly where they are and come back the moment you untick it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (from %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values already entered are kept — but nothing will show them. Undo puts the property back with its data.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::CodexModel</name>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>Uncategorised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, also called %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entities without a category</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::CodexPanel</name>
    <message>
        <source>Filter the codex</source>
        <translation>Kodex filtern</translation>
    </message>
    <message>
        <source>Codex</source>
        <translation>Kodex</translation>
    </message>
    <message>
        <source>Nothing of the world is here. Press + to add its first person, place or thing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New &amp;Entity</source>
        <translation>Neuer &amp;Eintrag</translation>
    </message>
    <message>
        <source>New &amp;Category</source>
        <translation>Neue &amp;Kategorie</translation>
    </message>
    <message>
        <source>New Category &amp;Beneath</source>
        <translation>Neue &amp;Unterkategorie</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Um&amp;benennen</translation>
    </message>
    <message>
        <source>&amp;Duplicate Entity</source>
        <translation>Eintrag &amp;duplizieren</translation>
    </message>
    <message>
        <source>Edit &amp;Properties…</source>
        <translation>Ei&amp;genschaften bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Entfe&amp;rnen</translation>
    </message>
    <message>
        <source>New entity</source>
        <translation>Neuer Eintrag</translation>
    </message>
    <message>
        <source>New category</source>
        <translation>Neue Kategorie</translation>
    </message>
    <message>
        <source>Locked entities stay. Unlock them in the inspector to remove them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed “%1”. Undo brings it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Removed %n things from the codex. Undo brings them back.</source>
        <translation>
            <numerusform>%n Eintrag aus dem Kodex entfernt. „Rückgängig“ holt ihn zurück.</numerusform>
            <numerusform>%n Einträge aus dem Kodex entfernt. „Rückgängig“ holt sie zurück.</numerusform>
        </translation>
    </message>
    <message>
        <source>Removed the category “%1”. Undo brings it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed the category “%1”. Its subcategories moved up. Undo brings it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed the category “%1”. Its entities moved up to “%2”. Undo brings it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed the category “%1”. Its entities have no category now. Undo brings it back.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::EntityHeading</name>
    <message>
        <source>Move to another category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No category</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::EntityPage</name>
    <message>
        <source>This entity is locked. Unlock it in the inspector to edit it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 properties filled in</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::EventsSection</name>
    <message>
        <source>Events</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::FieldDialog</name>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must be filled in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed: the same for everything beneath</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anything in the codex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One choice on each line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What belongs in here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value a fixed field supplies to everything beneath it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A category that is gone</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::FieldsSection</name>
    <message>
        <source>Add Property…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a property that this entity alone has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit or remove this property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit Property…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Property</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::GallerySection</name>
    <message>
        <source>Gallery</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::HiddenValuesSection</name>
    <message>
        <source>Kept, but no property shows it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These values show again when a property with their key reaches the entity.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::LifespanSection</name>
    <message>
        <source>Lifespan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The end lies before the beginning.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::MentionsSection</name>
    <message>
        <source>Mentions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the manuscript…</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n times</source>
        <translation>
            <numerusform>einmal</numerusform>
            <numerusform>%n-mal</numerusform>
        </translation>
    </message>
    <message>
        <source>No document names it yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::TimedValueDialog</name>
    <message>
        <source>State over Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the date from which the value holds.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::TimedValuesSection</name>
    <message>
        <source>State over time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add State…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::BooleanValueEditor</name>
    <message>
        <source>Yes, no, not set: a click goes on to the next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neither yes nor no. It is kept until you choose.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::ChipButton</name>
    <message>
        <source>Take out “%1”</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::ChoiceValueEditor</name>
    <message>
        <source>Not set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (not among the choices)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::DateValueEditor</name>
    <message>
        <source>Take this text out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Holds “%1”, which is no stored date. It is kept until you enter one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::NumberValueEditor</name>
    <message>
        <source>“%1” is not a number, so it is not stored. Write digits and a point, like 1250 or 3.5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a number. It is kept until you write one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::ReferenceValueEditor</name>
    <message>
        <source>Add by name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing in this project answers to “%1”. It is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No single entity is called “%1” here. Choose one from the list that appears as you type.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::StoryDateEdit</name>
    <message>
        <source>No date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a date this calendar can read. Write it like “%1” or just a year.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::UrlValueEditor</name>
    <message>
        <source>Open in the browser</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::inspector::DocumentSection</name>
    <message>
        <source>S&amp;ynopsis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Story &amp;date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tatus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Point of view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Te&amp;nsion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tar&amp;get</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What happens here, in a few sentences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screenplay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Idea</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First draft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revised</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Final</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::inspector::InspectorPanel</name>
    <message>
        <source>Select a document or a codex entry to see its properties.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::inspector::ObjectSection</name>
    <message>
        <source>&amp;Locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xclude from AI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;inned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;ags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plot threads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visible to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With none ticked, every audience sees it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Separated by commas</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::DocumentPage</name>
    <message>
        <source>This document is locked. Unlock it in the inspector to write.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 words</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::ManuscriptPanel</name>
    <message>
        <source>Filter the manuscript</source>
        <translation>Manuskript filtern</translation>
    </message>
    <message>
        <source>Manuscript</source>
        <translation>Manuskript</translation>
    </message>
    <message>
        <source>New &amp;Document</source>
        <translation>Neues &amp;Dokument</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Neues Dokument</translation>
    </message>
    <message>
        <source>New Document &amp;Inside</source>
        <translation>Neues Dokument &amp;innerhalb</translation>
    </message>
    <message>
        <source>New &amp;Screenplay</source>
        <translation>Neues Dreh&amp;buch</translation>
    </message>
    <message>
        <source>New screenplay</source>
        <translation>Neues Drehbuch</translation>
    </message>
    <message>
        <source>New N&amp;ote</source>
        <translation>Neue &amp;Notiz</translation>
    </message>
    <message>
        <source>New note</source>
        <translation>Neue Notiz</translation>
    </message>
    <message>
        <source>Re&amp;name Document</source>
        <translation>Dokument um&amp;benennen</translation>
    </message>
    <message>
        <source>Move Document &amp;Up</source>
        <translation>Dokument nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Document D&amp;own</source>
        <translation>Dokument nach un&amp;ten</translation>
    </message>
    <message>
        <source>Move Document &amp;In</source>
        <translation>Dokument e&amp;inrücken</translation>
    </message>
    <message>
        <source>Move Document O&amp;ut</source>
        <translation>Dokument a&amp;usrücken</translation>
    </message>
    <message>
        <source>&amp;Remove Document</source>
        <translation>Dokument entfe&amp;rnen</translation>
    </message>
    <message>
        <source>“%1” is locked. Unlock it in the inspector to remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed “%1”. Undo brings it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Removed %n documents with all that was in them. Undo brings them back.</source>
        <translation>
            <numerusform>%n Dokument mit allem darin entfernt. „Rückgängig“ holt es zurück.</numerusform>
            <numerusform>%n Dokumente mit allem darin entfernt. „Rückgängig“ holt sie zurück.</numerusform>
        </translation>
    </message>
    <message>
        <source>No documents here. Press + to write the first one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a project, or begin one.</source>
        <translation>Öffnen oder beginnen Sie ein Projekt.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::MarkdownPage</name>
    <message>
        <source>Text of the document</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::DockLayout</name>
    <message>
        <source>Reset Layout</source>
        <translation>Anordnung zurücksetzen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::MainWindow</name>
    <message>
        <source>Choose a document in the manuscript or an entry in the codex.</source>
        <translation>Wählen Sie ein Dokument im Manuskript oder einen Eintrag im Kodex.</translation>
    </message>
    <message>
        <source>Vellory</source>
        <translation>Vellory</translation>
    </message>
    <message>
        <source>%1[*] – Vellory</source>
        <translation>%1[*] – Vellory</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Neues Projekt…</translation>
    </message>
    <message>
        <source>&amp;Open Project…</source>
        <translation>Projekt ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Open the Sa&amp;mple</source>
        <translation>&amp;Beispiel öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Read Anew from &amp;Disk</source>
        <translation>Neu von der Festplatte &amp;lesen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Au&amp;sschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Codex</source>
        <translation>&amp;Kodex</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>Page &amp;Font…</source>
        <translation>Seiten&amp;schrift…</translation>
    </message>
    <message>
        <source>Page Font</source>
        <translation>Seitenschrift</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Farbschema</translation>
    </message>
    <message>
        <source>Follow the System</source>
        <translation>Dem System folgen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>&amp;Split Side by Side</source>
        <translation>&amp;Nebeneinander teilen</translation>
    </message>
    <message>
        <source>&amp;Next Tab</source>
        <translation>Nächster &amp;Tab</translation>
    </message>
    <message>
        <source>&amp;Previous Tab</source>
        <translation>&amp;Vorheriger Tab</translation>
    </message>
    <message>
        <source>&amp;Close Tab</source>
        <translation>Tab &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>Voll&amp;bild</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Vellory</source>
        <translation>Ü&amp;ber Vellory</translation>
    </message>
    <message>
        <source>About Vellory</source>
        <translation>Über Vellory</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Vellory %1&lt;/h3&gt;&lt;p&gt;A writing and worldbuilding workspace for novelists, screenwriters and game masters.&lt;/p&gt;&lt;p&gt;Free software under the GNU General Public License, version 3 or later.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Vellory %1&lt;/h3&gt;&lt;p&gt;Ein Arbeitsplatz zum Schreiben und Weltenbauen für Roman- und Drehbuchautoren und Spielleiter.&lt;/p&gt;&lt;p&gt;Freie Software unter der GNU General Public License, Version 3 oder neuer.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Nothing opened yet</source>
        <translation>Noch nichts geöffnet</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Manuscript</source>
        <translation>Manuskript</translation>
    </message>
    <message>
        <source>Codex</source>
        <translation>Kodex</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::OpenRequests</name>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>The project could not be found: %1</source>
        <translation>Das Projekt wurde nicht gefunden: %1</translation>
    </message>
    <message>
        <source>Vellory is already open. Where should “%1” open?</source>
        <translation>Vellory ist schon geöffnet. Wo soll „%1“ geöffnet werden?</translation>
    </message>
    <message>
        <source>This Window</source>
        <translation>In diesem Fenster</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>In einem neuen Fenster</translation>
    </message>
    <message>
        <source>Another window could not be started for %1. Open the project in this window instead, or start Vellory once more yourself.</source>
        <translation>Für %1 ließ sich kein weiteres Fenster starten. Öffnen Sie das Projekt in diesem Fenster, oder starten Sie Vellory selbst noch einmal.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::PanelHeader</name>
    <message>
        <source>More actions</source>
        <translation>Weitere Aktionen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::ProjectLife</name>
    <message>
        <source>Open Project</source>
        <translation type="unfinished">Projekt öffnen</translation>
    </message>
    <message>
        <source>Open the Sample</source>
        <translation type="unfinished">Beispiel öffnen</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation type="unfinished">Neues Projekt</translation>
    </message>
    <message>
        <source>What is the project called?</source>
        <translation type="unfinished">Wie heißt das Projekt?</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished">Ohne Titel</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation type="unfinished">Gespeichert.</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation type="unfinished">Projekt speichern</translation>
    </message>
    <message>
        <source>Save Project As a Folder</source>
        <translation type="unfinished">Projekt als Ordner speichern</translation>
    </message>
    <message>
        <source>Read the Project Anew</source>
        <translation type="unfinished">Projekt neu lesen</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved. Reading it anew from disk drops them.</source>
        <translation type="unfinished">„%1“ hat Änderungen, die nicht gespeichert sind. Wenn es neu von der Festplatte gelesen wird, gehen sie verloren.</translation>
    </message>
    <message>
        <source>Drop Changes</source>
        <translation type="unfinished">Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation type="unfinished">Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved.</source>
        <translation type="unfinished">„%1“ hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished">Speichern</translation>
    </message>
    <message>
        <source>Discard Changes</source>
        <translation type="unfinished">Änderungen verwerfen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::StatusStrip</name>
    <message>
        <source>Words of the day&apos;s target</source>
        <translation>Wörter des Tagesziels</translation>
    </message>
    <message>
        <source>When the scene happens in the story</source>
        <translation>Wann die Szene in der Geschichte spielt</translation>
    </message>
    <message>
        <source>Manuscript: %1 words</source>
        <translation>Manuskript: %1 Wörter</translation>
    </message>
    <message>
        <source>Session: +%1</source>
        <translation>Sitzung: +%1</translation>
    </message>
    <message>
        <source>Session: −%1</source>
        <translation>Sitzung: −%1</translation>
    </message>
    <message>
        <source>Words since the project was opened</source>
        <translation>Wörter, seit das Projekt geöffnet wurde</translation>
    </message>
    <message>
        <source>%1 of %2 words of the daily target</source>
        <translation>%1 von %2 Wörtern des Tagesziels</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Never saved</source>
        <translation>Noch nie gespeichert</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::WelcomePage</name>
    <message>
        <source>Welcome to Vellory</source>
        <translation>Willkommen bei Vellory</translation>
    </message>
    <message>
        <source>A quiet desk for long stories and the worlds they live in.</source>
        <translation>Ein ruhiger Schreibtisch für lange Geschichten und die Welten, in denen sie leben.</translation>
    </message>
    <message>
        <source>Look around in the sample</source>
        <translation>Im Beispiel umsehen</translation>
    </message>
    <message>
        <source>A copy of “Low Water”, an opening of a novel with its world.</source>
        <translation>Eine Kopie von „Low Water“, einem Romananfang mit seiner Welt.</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>An empty manuscript and an empty world.</source>
        <translation>Ein leeres Manuskript und eine leere Welt.</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Ein Projekt öffnen</translation>
    </message>
    <message>
        <source>A folder that holds project.json.</source>
        <translation>Ein Ordner, der project.json enthält.</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Go on with “%1”</source>
        <translation>Mit „%1“ weitermachen</translation>
    </message>
    <message>
        <source>The project is open already.</source>
        <translation>Das Projekt ist schon geöffnet.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::WorkArea</name>
    <message>
        <source>Open pages</source>
        <translation>Offene Seiten</translation>
    </message>
</context>
</TS>
