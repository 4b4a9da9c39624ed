<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>tw::desktop::codex::CodexPanel</name>
    <message numerus="yes">
        <source>Removed %n things from the codex. Undo brings them back.</source>
        <translation>
            <numerusform>Removed %n thing from the codex. Undo brings it back.</numerusform>
            <numerusform>Removed %n things from the codex. Undo brings them back.</numerusform>
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
    <name>tw::desktop::manuscript::ManuscriptPanel</name>
    <message numerus="yes">
        <source>Removed %n documents with all that was in them. Undo brings them back.</source>
        <translation>
            <numerusform>Removed %n document with all that was in it. Undo brings it back.</numerusform>
            <numerusform>Removed %n documents with all that was in them. Undo brings them back.</numerusform>
        </translation>
    </message>
</context>
</TS>
