<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CalendarRules</name>
    <message>
        <source>A calendar needs at least one month.</source>
        <translation>Ein Kalender braucht mindestens einen Monat.</translation>
    </message>
    <message>
        <source>Every month needs a name.</source>
        <translation>Jeder Monat braucht einen Namen.</translation>
    </message>
    <message>
        <source>Every month needs a length of at least one day.</source>
        <translation>Jeder Monat braucht eine Länge von mindestens einem Tag.</translation>
    </message>
    <message>
        <source>A calendar needs at least one weekday.</source>
        <translation>Ein Kalender braucht mindestens einen Wochentag.</translation>
    </message>
    <message>
        <source>Every era needs a name.</source>
        <translation>Jede Ära braucht einen Namen.</translation>
    </message>
    <message>
        <source>Every era needs a whole-number start year.</source>
        <translation>Jede Ära braucht eine ganze Zahl als Anfangsjahr.</translation>
    </message>
</context>
<context>
    <name>CategoryProperties</name>
    <message>
        <source>There is another property with the key “%1” here. Give this one another name.</source>
        <translation>Hier gibt es schon eine Eigenschaft mit dem Schlüssel „%1“. Geben Sie dieser einen anderen Namen.</translation>
    </message>
    <message>
        <source>A choice needs something to choose from. Write one choice on each line.</source>
        <translation>Zu einer Auswahl gehört etwas, woraus sich wählen lässt. Schreiben Sie je Zeile eine Möglichkeit.</translation>
    </message>
    <message>
        <source>“%1” already comes from above. This category gets its own version.</source>
        <translation>„%1“ kommt bereits von oben. Diese Kategorie erhält ihre eigene Fassung.</translation>
    </message>
    <message>
        <source>“%1” already comes from the category “%2”. This category and what is beneath it get their own version.</source>
        <translation>„%1“ kommt bereits aus der Kategorie „%2“. Diese Kategorie und alles darunter erhalten eine eigene Fassung.</translation>
    </message>
    <message>
        <source>Edit properties</source>
        <translation>Eigenschaften bearbeiten</translation>
    </message>
</context>
<context>
    <name>CodexEdits</name>
    <message>
        <source>Remove entity</source>
        <translation>Eintrag entfernen</translation>
    </message>
    <message>
        <source>Remove category</source>
        <translation>Kategorie entfernen</translation>
    </message>
    <message>
        <source>Remove from the codex</source>
        <translation>Aus dem Kodex entfernen</translation>
    </message>
    <message>
        <source>Move entity to category</source>
        <translation>Eintrag in Kategorie verschieben</translation>
    </message>
    <message>
        <source>Move category</source>
        <translation>Kategorie verschieben</translation>
    </message>
    <message>
        <source>Move in the codex</source>
        <translation>Im Kodex verschieben</translation>
    </message>
    <message>
        <source>Add entity</source>
        <translation>Eintrag hinzufügen</translation>
    </message>
    <message>
        <source>Duplicate entity</source>
        <translation>Eintrag duplizieren</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Kopie von %1</translation>
    </message>
    <message>
        <source>Add category</source>
        <translation>Kategorie hinzufügen</translation>
    </message>
    <message>
        <source>“%1” is locked. Unlock it in the inspector to move it.</source>
        <translation>„%1“ ist gesperrt. Zum Verschieben entsperren Sie es im Inspektor.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>A workspace for writing and worldbuilding.</source>
        <translation>Ein Arbeitsplatz zum Schreiben und Weltenbauen.</translation>
    </message>
    <message>
        <source>The project to open: its file or its folder.</source>
        <translation>Das Projekt, das geöffnet wird: seine Datei oder sein Ordner.</translation>
    </message>
    <message>
        <source>Print this, and leave.</source>
        <translation>Diese Übersicht ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Print the version, and leave.</source>
        <translation>Die Version ausgeben und beenden.</translation>
    </message>
    <message>
        <source>The language of this run, such as “de”.</source>
        <translation>Die Sprache für diesen Lauf, etwa „de“.</translation>
    </message>
    <message>
        <source>Open a window of its own, also when the program is running already.</source>
        <translation>Ein eigenes Fenster öffnen, auch wenn das Programm schon läuft.</translation>
    </message>
    <message>
        <source>Save a picture of the window to the file, and leave.</source>
        <translation>Ein Bild des Fensters in die Datei speichern und beenden.</translation>
    </message>
    <message>
        <source>Show a panel, or the object of this title or id, before the picture is taken.</source>
        <translation>Vor der Aufnahme einen Bereich oder das Objekt mit diesem Titel oder dieser Kennung zeigen.</translation>
    </message>
    <message>
        <source>Build every dialog, report on them, and leave.</source>
        <translation>Jeden Dialog aufbauen, darüber berichten und beenden.</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Type a few words of a command</source>
        <translation>Einige Wörter eines Befehls eingeben</translation>
    </message>
    <message>
        <source>No command has all these words in its name or its menu. Type fewer letters.</source>
        <translation>Kein Befehl hat alle diese Wörter in seinem Namen oder seinem Menü. Geben Sie weniger Buchstaben ein.</translation>
    </message>
</context>
<context>
    <name>Continuity</name>
    <message>
        <source>must start after</source>
        <translation>muss beginnen nach</translation>
    </message>
    <message>
        <source>must end before</source>
        <translation>muss enden vor</translation>
    </message>
    <message>
        <source>must happen during</source>
        <translation>muss stattfinden während</translation>
    </message>
    <message>
        <source>&quot;%1&quot; happens at a location that no longer exists.</source>
        <translation>„%1“ spielt an einem Ort, den es nicht mehr gibt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; lists a participant that no longer exists.</source>
        <translation>„%1“ nennt jemanden, den es nicht mehr gibt.</translation>
    </message>
    <message>
        <source>%1 is in two places at once: &quot;%2&quot; and &quot;%3&quot;.</source>
        <translation>%1 ist an zwei Orten zugleich: „%2“ und „%3“.</translation>
    </message>
    <message>
        <source>%1 takes part in &quot;%2&quot; before being born.</source>
        <translation>%1 nimmt an „%2“ vor der eigenen Geburt teil.</translation>
    </message>
    <message>
        <source>%1 takes part in &quot;%2&quot; after death.</source>
        <translation>%1 nimmt an „%2“ nach dem eigenen Tod teil.</translation>
    </message>
    <message>
        <source>%1 cannot travel from %2 to %3 in time between &quot;%4&quot; and &quot;%5&quot;.</source>
        <translation>%1 kommt zwischen „%4“ und „%5“ nicht rechtzeitig von %2 nach %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; %2 &quot;%3&quot;, but does not.</source>
        <translation>„%1“ %2 „%3“, tut es aber nicht.</translation>
    </message>
    <message>
        <source>must be</source>
        <translation>muss sein</translation>
    </message>
    <message>
        <source>must not be</source>
        <translation>darf nicht sein</translation>
    </message>
    <message>
        <source>must contain</source>
        <translation>muss enthalten</translation>
    </message>
    <message>
        <source>must not contain</source>
        <translation>darf nicht enthalten</translation>
    </message>
    <message>
        <source>must be less than</source>
        <translation>muss kleiner sein als</translation>
    </message>
    <message>
        <source>must be at most</source>
        <translation>darf höchstens sein</translation>
    </message>
    <message>
        <source>must be greater than</source>
        <translation>muss größer sein als</translation>
    </message>
    <message>
        <source>must be at least</source>
        <translation>muss mindestens sein</translation>
    </message>
    <message>
        <source>must be empty</source>
        <translation>muss leer sein</translation>
    </message>
    <message>
        <source>must be non-empty</source>
        <translation>darf nicht leer sein</translation>
    </message>
    <message>
        <source>must be one of</source>
        <translation>muss eines sein von</translation>
    </message>
    <message>
        <source>%1&apos;s %2 %3</source>
        <translation>%2 von %1 %3</translation>
    </message>
    <message>
        <source> &quot;%1&quot;</source>
        <translation> „%1“</translation>
    </message>
    <message>
        <source>Rule &quot;%1&quot; refers to an entity that is no longer in the project.</source>
        <translation>Die Regel „%1“ betrifft einen Eintrag, der nicht mehr im Projekt ist.</translation>
    </message>
    <message>
        <source>Rule &quot;%1&quot;: %2, but is &quot;%3&quot;.</source>
        <translation>Regel „%1“: %2, ist aber „%3“.</translation>
    </message>
    <message>
        <source>(unset)</source>
        <translation>(nicht gesetzt)</translation>
    </message>
    <message>
        <source>An entity</source>
        <translation>Ein Eintrag</translation>
    </message>
    <message>
        <source>Untitled event</source>
        <translation>Ereignis ohne Titel</translation>
    </message>
</context>
<context>
    <name>CrashRecovery</name>
    <message numerus="yes">
        <source>Vellory did not end properly the last time. Changes to %n items of “%1” were noted, but not saved. Bring them back?</source>
        <translation>
            <numerusform>Vellory wurde beim letzten Mal nicht ordnungsgemäß beendet. Änderungen an %n Teil von „%1“ wurden festgehalten, aber nicht gespeichert. Möchten Sie sie zurückholen?</numerusform>
            <numerusform>Vellory wurde beim letzten Mal nicht ordnungsgemäß beendet. Änderungen an %n Teilen von „%1“ wurden festgehalten, aber nicht gespeichert. Möchten Sie sie zurückholen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Unsaved Changes Found</source>
        <translation>Ungespeicherte Änderungen gefunden</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message numerus="yes">
        <source>%n of them have changed on disk since then, too. Your version takes their place; the project as it is on disk is backed up first.</source>
        <translation>
            <numerusform>%n davon hat sich seither auch auf der Festplatte geändert. Ihre Fassung tritt an deren Stelle; das Projekt, wie es auf der Festplatte ist, wird zuvor gesichert.</numerusform>
            <numerusform>%n davon haben sich seither auch auf der Festplatte geändert. Ihre Fassung tritt an deren Stelle; das Projekt, wie es auf der Festplatte ist, wird zuvor gesichert.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DocumentEditor</name>
    <message>
        <source>pasted image</source>
        <translation>eingefügtes Bild</translation>
    </message>
    <message>
        <source>The pasted image could not be written. Save it as a file and insert that.</source>
        <translation>Das eingefügte Bild ließ sich nicht schreiben. Speichern Sie es als Datei, und fügen Sie diese ein.</translation>
    </message>
    <message>
        <source>The link “%1” cannot be opened from here.</source>
        <translation>Der Link „%1“ lässt sich von hier nicht öffnen.</translation>
    </message>
</context>
<context>
    <name>DocumentStatus</name>
    <message>
        <source>Idea</source>
        <translation>Idee</translation>
    </message>
    <message>
        <source>First draft</source>
        <translation>Rohfassung</translation>
    </message>
    <message>
        <source>Revised</source>
        <translation>Überarbeitet</translation>
    </message>
    <message>
        <source>Final</source>
        <translation>Endfassung</translation>
    </message>
</context>
<context>
    <name>ExternalReview</name>
    <message>
        <source>The resolved files could not be written; nothing was changed. Your project was backed up first.</source>
        <translation>Die gelösten Dateien ließen sich nicht schreiben; nichts wurde geändert. Ihr Projekt wurde zuvor gesichert.</translation>
    </message>
    <message>
        <source>Some merged changes could not be applied to the files on disk. Your project was backed up first; reloading what is on disk now.</source>
        <translation>Einige zusammengeführte Änderungen ließen sich nicht in die Dateien auf der Festplatte übernehmen. Ihr Projekt wurde zuvor gesichert; nun wird neu geladen, was auf der Festplatte steht.</translation>
    </message>
    <message>
        <source>The merged result could not be written back to the project file, so the file&apos;s own version will be loaded instead. Your project was backed up first.</source>
        <translation>Das zusammengeführte Ergebnis ließ sich nicht in die Projektdatei zurückschreiben; stattdessen wird die Fassung der Datei geladen. Ihr Projekt wurde zuvor gesichert.</translation>
    </message>
    <message>
        <source>Save the project first, then Vellory can check whether anything on disk changed outside the app.</source>
        <translation>Speichern Sie zuerst das Projekt. Dann kann Vellory prüfen, ob sich auf der Festplatte außerhalb des Programms etwas geändert hat.</translation>
    </message>
    <message>
        <source>The files on disk cannot be read as a project right now: %1. Nothing was changed. If a sync client is still at work, wait until it is done, then check again.</source>
        <translation>Die Dateien auf der Festplatte ergeben im Augenblick kein lesbares Projekt: %1. Nichts wurde geändert. Falls noch ein Synchronisierungsprogramm arbeitet, warten Sie, bis es fertig ist, und prüfen Sie dann erneut.</translation>
    </message>
</context>
<context>
    <name>FieldGroups</name>
    <message>
        <source>Through %1</source>
        <translation>Von %1</translation>
    </message>
    <message>
        <source>Only here</source>
        <translation>Nur hier</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Properties that cross from the entity this category hangs under.</source>
        <translation>Eigenschaften, die von dem Eintrag herüberkommen, unter dem diese Kategorie hängt.</translation>
    </message>
    <message>
        <source>Properties of this entity alone.</source>
        <translation>Eigenschaften, die nur dieser Eintrag hat.</translation>
    </message>
    <message>
        <source>Values that a category supplies to everything beneath it. Change them there.</source>
        <translation>Werte, die eine Kategorie allem unter ihr vorgibt. Ändern Sie sie dort.</translation>
    </message>
    <message>
        <source>Inherited from the category “%1”.</source>
        <translation>Geerbt von der Kategorie „%1“.</translation>
    </message>
    <message>
        <source>Declared by the category “%1”.</source>
        <translation>Festgelegt von der Kategorie „%1“.</translation>
    </message>
    <message>
        <source>%1 (from %2)</source>
        <translation>%1 (aus %2)</translation>
    </message>
</context>
<context>
    <name>FieldRow</name>
    <message>
        <source>Fixed by the category “%1”</source>
        <translation>Von der Kategorie „%1“ fest vorgegeben</translation>
    </message>
    <message>
        <source>Fixed by its category</source>
        <translation>Von der Kategorie fest vorgegeben</translation>
    </message>
    <message>
        <source>Still to be filled in</source>
        <translation>Noch auszufüllen</translation>
    </message>
</context>
<context>
    <name>FileTitles</name>
    <message>
        <source>%1 (document)</source>
        <translation>%1 (Dokument)</translation>
    </message>
    <message>
        <source>%1 (table)</source>
        <translation>%1 (Tabelle)</translation>
    </message>
    <message>
        <source>%1 (chart)</source>
        <translation>%1 (Diagramm)</translation>
    </message>
    <message>
        <source>%1 (map)</source>
        <translation>%1 (Karte)</translation>
    </message>
    <message>
        <source>%1 (timeline)</source>
        <translation>%1 (Zeitleiste)</translation>
    </message>
    <message>
        <source>%1 (event)</source>
        <translation>%1 (Ereignis)</translation>
    </message>
    <message>
        <source>%1 (media)</source>
        <translation>%1 (Mediendatei)</translation>
    </message>
    <message>
        <source>%1 (source)</source>
        <translation>%1 (Quelle)</translation>
    </message>
    <message>
        <source>%1 (task)</source>
        <translation>%1 (Aufgabe)</translation>
    </message>
    <message>
        <source>%1 (board)</source>
        <translation>%1 (Pinnwand)</translation>
    </message>
    <message>
        <source>%1 (comment)</source>
        <translation>%1 (Kommentar)</translation>
    </message>
    <message>
        <source>%1 (language)</source>
        <translation>%1 (Sprache)</translation>
    </message>
    <message>
        <source>%1 (random table)</source>
        <translation>%1 (Zufallstabelle)</translation>
    </message>
    <message>
        <source>%1 (stat block)</source>
        <translation>%1 (Wertekasten)</translation>
    </message>
    <message>
        <source>Settings of the project</source>
        <translation>Einstellungen des Projekts</translation>
    </message>
    <message>
        <source>%1 (category)</source>
        <translation>%1 (Kategorie)</translation>
    </message>
    <message>
        <source>%1 (entity)</source>
        <translation>%1 (Eintrag)</translation>
    </message>
</context>
<context>
    <name>Footnotes</name>
    <message>
        <source>Insert endnote</source>
        <translation>Endnote einfügen</translation>
    </message>
    <message>
        <source>Insert footnote</source>
        <translation>Fußnote einfügen</translation>
    </message>
</context>
<context>
    <name>GalleryEdits</name>
    <message>
        <source>“%1” is no picture this program can show. Save it as PNG or JPEG and add that.</source>
        <translation>„%1“ ist kein Bild, das dieses Programm zeigen kann. Speichern Sie es als PNG oder JPEG und fügen Sie das hinzu.</translation>
    </message>
    <message>
        <source>Add pictures</source>
        <translation>Bilder hinzufügen</translation>
    </message>
    <message>
        <source>Remove picture</source>
        <translation>Bild entfernen</translation>
    </message>
    <message>
        <source>Move picture</source>
        <translation>Bild verschieben</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>No dictionary is installed</source>
        <translation>Kein Wörterbuch installiert</translation>
    </message>
    <message>
        <source>No document is open</source>
        <translation>Kein Dokument geöffnet</translation>
    </message>
    <message>
        <source>As in the &amp;Settings</source>
        <translation>Wie in den &amp;Einstellungen</translation>
    </message>
</context>
<context>
    <name>LibraryObjects</name>
    <message>
        <source>“%1” stands in the library “%2”. Open that project to read or change it.</source>
        <translation>„%1“ steht in der Bibliothek „%2“. Öffnen Sie jenes Projekt, um es zu lesen oder zu ändern.</translation>
    </message>
</context>
<context>
    <name>ManuscriptEdits</name>
    <message>
        <source>Add document</source>
        <translation>Dokument hinzufügen</translation>
    </message>
    <message>
        <source>Move document</source>
        <translation>Dokument verschieben</translation>
    </message>
    <message>
        <source>Remove document</source>
        <translation>Dokument entfernen</translation>
    </message>
</context>
<context>
    <name>NamedStyle</name>
    <message>
        <source>Letter</source>
        <translation>Brief</translation>
    </message>
    <message>
        <source>Verse</source>
        <translation>Vers</translation>
    </message>
    <message>
        <source>Epigraph</source>
        <translation>Motto</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
</context>
<context>
    <name>NewPlace</name>
    <message>
        <source>One file (recommended)</source>
        <translation>Eine Datei (empfohlen)</translation>
    </message>
    <message>
        <source>A folder</source>
        <translation>Ein Ordner</translation>
    </message>
    <message>
        <source>The project is one .vellory file you can copy, back up, and double-click.</source>
        <translation>Das Projekt ist eine einzige .vellory-Datei, die Sie kopieren, sichern und per Doppelklick öffnen können.</translation>
    </message>
    <message>
        <source>The project is a folder of plain text files, ideal under Git, Perforce, or a sync client.</source>
        <translation>Das Projekt ist ein Ordner mit einfachen Textdateien, ideal unter Git, Perforce oder einem Synchronisierungsprogramm.</translation>
    </message>
    <message>
        <source>Give the project a name.</source>
        <translation>Geben Sie dem Projekt einen Namen.</translation>
    </message>
    <message>
        <source>Nothing can be written in %1. Choose another place.</source>
        <translation>In %1 lässt sich nichts schreiben. Wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <source>%1 is the folder of another project. Choose another place.</source>
        <translation>%1 ist der Ordner eines anderen Projekts. Wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <source>Choose a folder for the project.</source>
        <translation>Wählen Sie einen Ordner für das Projekt.</translation>
    </message>
    <message>
        <source>%1 is not a folder. Choose another place.</source>
        <translation>%1 ist kein Ordner. Wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <source>There is already something at %1, and it is not replaced. Choose another name or another place.</source>
        <translation>Unter %1 gibt es schon etwas, und es wird nicht ersetzt. Wählen Sie einen anderen Namen oder einen anderen Ort.</translation>
    </message>
</context>
<context>
    <name>ObjectTitles</name>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>(unnamed reckoning)</source>
        <translation>(unbenannte Zeitrechnung)</translation>
    </message>
</context>
<context>
    <name>OutlineColumns</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Synopse</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Point of view</source>
        <translation>Perspektive</translation>
    </message>
    <message>
        <source>Story date</source>
        <translation>Handlungszeit</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
</context>
<context>
    <name>OwnFieldEdits</name>
    <message>
        <source>New Property of “%1”</source>
        <translation>Neue Eigenschaft von „%1“</translation>
    </message>
    <message>
        <source>Add Property</source>
        <translation>Eigenschaft hinzufügen</translation>
    </message>
    <message>
        <source>Property “%1”</source>
        <translation>Eigenschaft „%1“</translation>
    </message>
    <message>
        <source>Change Property</source>
        <translation>Eigenschaft ändern</translation>
    </message>
    <message>
        <source>Values already entered are kept — but nothing will show them. Undo puts the property back with its data.</source>
        <translation>Schon eingetragene Werte bleiben erhalten, doch nichts zeigt sie mehr an. „Rückgängig“ stellt die Eigenschaft mit ihren Daten wieder her.</translation>
    </message>
    <message>
        <source>This entity has been removed meanwhile. Cancel here; undo brings the entity back.</source>
        <translation>Dieser Eintrag ist inzwischen entfernt worden. Brechen Sie hier ab; „Rückgängig“ holt ihn zurück.</translation>
    </message>
</context>
<context>
    <name>PackTransfer</name>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Export Content Pack</source>
        <translation>Inhaltspaket exportieren</translation>
    </message>
    <message>
        <source>Replace the Pack</source>
        <translation>Paket ersetzen</translation>
    </message>
    <message numerus="yes">
        <source>Added %n categories: %1</source>
        <translation>
            <numerusform>%n Kategorie hinzugefügt: %1</numerusform>
            <numerusform>%n Kategorien hinzugefügt: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Left out %n categories that are here already: %1</source>
        <translation>
            <numerusform>%n Kategorie ausgelassen, weil sie schon da ist: %1</numerusform>
            <numerusform>%n Kategorien ausgelassen, weil sie schon da sind: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The pack holds no categories.</source>
        <translation>Das Paket enthält keine Kategorien.</translation>
    </message>
    <message>
        <source>Import Content Pack</source>
        <translation>Inhaltspaket importieren</translation>
    </message>
    <message>
        <source>Where the Pack&apos;s Folder Goes</source>
        <translation>Wohin der Ordner des Pakets kommt</translation>
    </message>
    <message>
        <source>Exported the content pack to %1</source>
        <translation>Inhaltspaket exportiert nach %1</translation>
    </message>
    <message>
        <source>There is already a content pack at %1.</source>
        <translation>Unter %1 gibt es schon ein Inhaltspaket.</translation>
    </message>
</context>
<context>
    <name>Persistence</name>
    <message>
        <source>Save the project to a folder before backing it up.</source>
        <translation>Speichern Sie das Projekt in einem Ordner, bevor Sie es sichern.</translation>
    </message>
    <message>
        <source>Could not create a backup of the project.</source>
        <translation>Vom Projekt ließ sich keine Sicherung anlegen.</translation>
    </message>
    <message>
        <source>Not a valid Vellory project file: %1</source>
        <translation>Keine gültige Vellory-Projektdatei: %1</translation>
    </message>
    <message>
        <source>Could not read a project file: %1</source>
        <translation>Eine Datei des Projekts ließ sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>A file has a name that cannot be kept in a project file. Rename it, then try again: %1</source>
        <translation>Eine Datei hat einen Namen, der sich in einer Projektdatei nicht ablegen lässt. Benennen Sie sie um, und versuchen Sie es dann noch einmal: %1</translation>
    </message>
    <message>
        <source>The project folder does not exist: %1</source>
        <translation>Den Projektordner gibt es nicht: %1</translation>
    </message>
    <message>
        <source>The folder is not an Vellory project (no project.json): %1</source>
        <translation>Der Ordner ist kein Vellory-Projekt (project.json fehlt): %1</translation>
    </message>
    <message>
        <source>Could not write the project file (it may be locked by another program -- the desktop app, a sync client, or antivirus): %1</source>
        <translation>Die Projektdatei ließ sich nicht schreiben (vielleicht hält ein anderes Programm sie fest: ein weiteres Vellory, ein Synchronisierungsprogramm oder ein Virenscanner): %1</translation>
    </message>
    <message>
        <source>The extraction folder is not empty: %1</source>
        <translation>Der Ordner zum Entpacken ist nicht leer: %1</translation>
    </message>
    <message>
        <source>Could not create the folder: %1</source>
        <translation>Der Ordner ließ sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>Could not create the folder for: %1</source>
        <translation>Für diese Datei ließ sich kein Ordner anlegen: %1</translation>
    </message>
    <message>
        <source>Could not write a project file: %1</source>
        <translation>Eine Datei des Projekts ließ sich nicht schreiben: %1</translation>
    </message>
    <message>
        <source>Could not open the project file: %1</source>
        <translation>Die Projektdatei ließ sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>Malformed category file: %1</source>
        <translation>Fehlerhafte Kategoriedatei: %1</translation>
    </message>
    <message>
        <source>Malformed field in category: %1</source>
        <translation>Fehlerhafte Eigenschaft in der Kategorie: %1</translation>
    </message>
    <message>
        <source>Malformed object file: %1</source>
        <translation>Fehlerhafte Objektdatei: %1</translation>
    </message>
    <message>
        <source>Duplicate object id %1 in %2</source>
        <translation>Objektkennung %1 ist doppelt vergeben in %2</translation>
    </message>
    <message>
        <source>Cannot read file: %1</source>
        <translation>Die Datei ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>Invalid JSON in file: %1</source>
        <translation>Ungültiges JSON in der Datei: %1</translation>
    </message>
    <message>
        <source>No project directory to import into</source>
        <translation>Es gibt keinen Projektordner, in den importiert werden könnte</translation>
    </message>
    <message>
        <source>Source file does not exist: %1</source>
        <translation>Die Ausgangsdatei gibt es nicht: %1</translation>
    </message>
    <message>
        <source>Cannot create assets folder in: %1</source>
        <translation>Der Ordner für Medien lässt sich nicht anlegen in: %1</translation>
    </message>
    <message>
        <source>Cannot copy file into assets: %1</source>
        <translation>Die Datei lässt sich nicht in den Medienordner kopieren: %1</translation>
    </message>
    <message>
        <source>Could not write &apos;%1&apos; (it may be locked by another program -- the desktop app, a sync client, or antivirus).</source>
        <translation>„%1“ ließ sich nicht schreiben (vielleicht hält ein anderes Programm die Datei fest: ein weiteres Vellory, ein Synchronisierungsprogramm oder ein Virenscanner).</translation>
    </message>
    <message>
        <source>The project changed on disk since it was opened, so saving now would overwrite those changes. Review them first.</source>
        <translation>Das Projekt hat sich auf der Festplatte geändert, seit es geöffnet wurde; wenn es jetzt gespeichert würde, gingen diese Änderungen verloren. Sehen Sie sie zuerst durch.</translation>
    </message>
    <message>
        <source>The folder %1 is a link that leads out of the project. Put a real folder in its place, then save again.</source>
        <translation>Der Ordner %1 ist eine Verknüpfung, die aus dem Projekt hinausführt. Ersetzen Sie sie durch einen wirklichen Ordner, und speichern Sie dann noch einmal.</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>Der Projektordner lässt sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>Cannot create taxonomy folder: %1</source>
        <translation>Der Ordner für die Kategorien lässt sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>Could not remove &apos;%1&apos; (it may be locked by another program -- the desktop app, a sync client, or antivirus).</source>
        <translation>„%1“ ließ sich nicht entfernen (vielleicht hält ein anderes Programm die Datei fest: ein weiteres Vellory, ein Synchronisierungsprogramm oder ein Virenscanner).</translation>
    </message>
    <message>
        <source>Cannot create the folder for locks: %1</source>
        <translation>Der Ordner für Sperren lässt sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>Another program is saving this project right now: %1. Try again in a moment.</source>
        <translation>Ein anderes Programm speichert dieses Projekt gerade: %1. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The compressed data is damaged or incomplete.</source>
        <translation>Die komprimierten Daten sind beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <source>The file is too short to be an archive.</source>
        <translation>Die Datei ist zu kurz für ein Archiv.</translation>
    </message>
    <message>
        <source>The file is not an archive, or its end is missing.</source>
        <translation>Die Datei ist kein Archiv, oder ihr Ende fehlt.</translation>
    </message>
    <message>
        <source>The archive is damaged.</source>
        <translation>Das Archiv ist beschädigt.</translation>
    </message>
    <message>
        <source>The archive is damaged: its entries overlap.</source>
        <translation>Das Archiv ist beschädigt: Seine Einträge überschneiden sich.</translation>
    </message>
    <message>
        <source>The archive holds two entries of the same name.</source>
        <translation>Das Archiv enthält zwei Einträge desselben Namens.</translation>
    </message>
    <message>
        <source>The archive is encrypted, split, or packed in a way that cannot be read. Pack it again as a plain ZIP archive.</source>
        <translation>Das Archiv ist verschlüsselt, geteilt oder auf eine Weise gepackt, die nicht lesbar ist. Packen Sie es neu als einfaches ZIP-Archiv.</translation>
    </message>
    <message>
        <source>The archive claims to hold far more than it can.</source>
        <translation>Das Archiv gibt vor, weit mehr zu enthalten, als es kann.</translation>
    </message>
    <message>
        <source>The archive is damaged: a checksum is wrong.</source>
        <translation>Das Archiv ist beschädigt: Eine Prüfsumme stimmt nicht.</translation>
    </message>
    <message>
        <source>The archive would be larger than 4 GiB. Remove some large files, then try again.</source>
        <translation>Das Archiv würde größer als 4 GiB. Entfernen Sie einige große Dateien, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>The path of a file is too long for an archive: %1</source>
        <translation>Der Pfad einer Datei ist für ein Archiv zu lang: %1</translation>
    </message>
    <message>
        <source>An archive can hold at most 65,535 files. Remove some files, then try again.</source>
        <translation>Ein Archiv kann höchstens 65.535 Dateien enthalten. Entfernen Sie einige Dateien, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>The archive could not be written. Check that there is room on the disk.</source>
        <translation>Das Archiv ließ sich nicht schreiben. Prüfen Sie, ob auf der Festplatte noch Platz ist.</translation>
    </message>
    <message>
        <source>The project file is not readable right now; try again.</source>
        <translation>Die Projektdatei ist im Augenblick nicht lesbar; versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Could not prepare the project&apos;s working folder: %1</source>
        <translation>Der Arbeitsordner des Projekts ließ sich nicht vorbereiten: %1</translation>
    </message>
    <message>
        <source>Could not refresh the project&apos;s working folder: %1</source>
        <translation>Der Arbeitsordner des Projekts ließ sich nicht auffrischen: %1</translation>
    </message>
    <message>
        <source>Could not restore unsaved changes into the project file: %1</source>
        <translation>Ungespeicherte Änderungen ließen sich nicht in die Projektdatei übernehmen: %1</translation>
    </message>
    <message>
        <source>Could not clear the stale working copy: %1</source>
        <translation>Die veraltete Arbeitskopie ließ sich nicht beseitigen: %1</translation>
    </message>
    <message>
        <source>The journal of unsaved changes cannot be read. It may be of another version of the program.</source>
        <translation>Das Journal der ungespeicherten Änderungen ist nicht lesbar. Vielleicht stammt es von einer anderen Version des Programms.</translation>
    </message>
    <message>
        <source>the merged file &apos;%1&apos; would not be valid</source>
        <translation>die zusammengeführte Datei „%1“ wäre nicht gültig</translation>
    </message>
    <message>
        <source>the reconcile has conflicts to resolve first</source>
        <translation>beim Abgleich sind erst noch Konflikte zu lösen</translation>
    </message>
    <message>
        <source>Import “%1”</source>
        <translation>„%1“ importieren</translation>
    </message>
    <message>
        <source>The folder %1 holds no content pack. Choose the folder that holds pack.json.</source>
        <translation>Der Ordner %1 enthält kein Inhaltspaket. Wählen Sie den Ordner, in dem pack.json liegt.</translation>
    </message>
    <message>
        <source>In the content pack %1, the category “%2” is above itself. Give one of the categories above it another parent, then try again.</source>
        <translation>Im Inhaltspaket %1 steht die Kategorie „%2“ über sich selbst. Hängen Sie eine der Kategorien über ihr an eine andere Stelle, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>The folder %1 holds something else. Choose an empty folder or a new name for the content pack.</source>
        <translation>Der Ordner %1 enthält etwas anderes. Wählen Sie einen leeren Ordner oder einen neuen Namen für das Inhaltspaket.</translation>
    </message>
    <message>
        <source>In the content pack %1, the files %2 and %3 hold the same category. Remove one of them, then try again.</source>
        <translation>Im Inhaltspaket %1 enthalten die Dateien %2 und %3 dieselbe Kategorie. Entfernen Sie eine davon, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>There is already something at %1, and it is not replaced. Choose another name or folder.</source>
        <translation>Unter %1 gibt es schon etwas, und es wird nicht ersetzt. Wählen Sie einen anderen Namen oder Ordner.</translation>
    </message>
    <message>
        <source>Save your work, and free some space: unsaved changes could not be noted for recovery in %1.</source>
        <translation>Speichern Sie Ihre Arbeit, und schaffen Sie Platz: Ungespeicherte Änderungen ließen sich nicht für eine Wiederherstellung festhalten, in %1.</translation>
    </message>
</context>
<context>
    <name>ProjectFileDialogs</name>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Projects (*.vellory *.tarnwick)</source>
        <translation>Projekte (*.vellory *.tarnwick)</translation>
    </message>
    <message>
        <source>Backups (*.twbackup)</source>
        <translation>Sicherungen (*.twbackup)</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Open Project Folder</source>
        <translation>Projektordner öffnen</translation>
    </message>
    <message>
        <source>Choose a Backup</source>
        <translation>Sicherung wählen</translation>
    </message>
    <message>
        <source>Backups and projects (*.twbackup *.vellory *.tarnwick)</source>
        <translation>Sicherungen und Projekte (*.twbackup *.vellory *.tarnwick)</translation>
    </message>
    <message>
        <source>One file (*.vellory)</source>
        <translation>Eine Datei (*.vellory)</translation>
    </message>
    <message>
        <source>A folder (*)</source>
        <translation>Ein Ordner (*)</translation>
    </message>
    <message>
        <source>Save Project As</source>
        <translation>Projekt speichern unter</translation>
    </message>
    <message>
        <source>Choose Another Name</source>
        <translation>Anderen Namen wählen</translation>
    </message>
    <message>
        <source>Replace the File</source>
        <translation>Datei ersetzen</translation>
    </message>
    <message>
        <source>There is already a file at %1.</source>
        <translation>Unter %1 gibt es schon eine Datei.</translation>
    </message>
</context>
<context>
    <name>ProjectSettings</name>
    <message>
        <source>Give the project a name.</source>
        <translation>Geben Sie dem Projekt einen Namen.</translation>
    </message>
    <message>
        <source>Give every audience a name, or remove it.</source>
        <translation>Geben Sie jeder Zielgruppe einen Namen, oder entfernen Sie sie.</translation>
    </message>
    <message>
        <source>Two audiences are called “%1”. Give one another name.</source>
        <translation>Zwei Zielgruppen heißen „%1“. Geben Sie einer einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>ProseProblem</name>
    <message>
        <source>Spelling</source>
        <translation>Rechtschreibung</translation>
    </message>
    <message>
        <source>Repeated word</source>
        <translation>Wiederholtes Wort</translation>
    </message>
    <message>
        <source>Long sentence</source>
        <translation>Langer Satz</translation>
    </message>
    <message>
        <source>Passive voice</source>
        <translation>Passiv</translation>
    </message>
    <message>
        <source>Filler</source>
        <translation>Füllwort</translation>
    </message>
    <message>
        <source>Wordy phrases</source>
        <translation>Umständliche Wendungen</translation>
    </message>
    <message>
        <source>Adverb</source>
        <translation>Adverb</translation>
    </message>
    <message>
        <source>Cliché</source>
        <translation>Klischee</translation>
    </message>
    <message>
        <source>Unknown word: %1</source>
        <translation>Unbekanntes Wort: %1</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>RuleValue</name>
    <message>
        <source>“%1” is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>“%1” is neither yes nor no.</source>
        <translation>„%1“ ist weder ja noch nein.</translation>
    </message>
    <message>
        <source>“%1” is not a date this calendar can read. Write it like “%2” or just a year.</source>
        <translation>„%1“ ist kein Datum, das dieser Kalender lesen kann. Schreiben Sie es wie „%2“ oder nur ein Jahr.</translation>
    </message>
    <message>
        <source>“%1” is none of the choices: %2.</source>
        <translation>„%1“ ist keine der Möglichkeiten: %2.</translation>
    </message>
    <message>
        <source>There is no entity, or more than one, called “%1” here.</source>
        <translation>Hier gibt es keinen Eintrag namens „%1“, oder mehr als einen.</translation>
    </message>
</context>
<context>
    <name>ScreenplayElement</name>
    <message>
        <source>Scene heading</source>
        <translation>Szenenüberschrift</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handlung</translation>
    </message>
    <message>
        <source>Character</source>
        <translation>Figur</translation>
    </message>
    <message>
        <source>Dialogue</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Parenthetical</source>
        <translation>Spielanweisung</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Übergang</translation>
    </message>
</context>
<context>
    <name>Snapshots</name>
    <message>
        <source>Before restoring</source>
        <translation>Vor dem Wiederherstellen</translation>
    </message>
    <message>
        <source>Restore snapshot</source>
        <translation>Version wiederherstellen</translation>
    </message>
    <message>
        <source>Restore passage</source>
        <translation>Stelle wiederherstellen</translation>
    </message>
    <message>
        <source>Give the variant a name.</source>
        <translation>Geben Sie der Variante einen Namen.</translation>
    </message>
    <message>
        <source>There is a variant named “%1” already. Choose another name.</source>
        <translation>Es gibt bereits eine Variante „%1“. Wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>SpellChecker</name>
    <message>
        <source>The dictionary “%1” cannot be used: %2 %3 Install it again, or choose another language.</source>
        <translation>Das Wörterbuch „%1“ lässt sich nicht verwenden: %2 %3 Installieren Sie es neu, oder wählen Sie eine andere Sprache.</translation>
    </message>
    <message>
        <source>cannot be read (%1).</source>
        <translation>lässt sich nicht lesen (%1).</translation>
    </message>
    <message>
        <source>is far too large.</source>
        <translation>ist viel zu groß.</translation>
    </message>
    <message>
        <source>is not a text.</source>
        <translation>ist kein Text.</translation>
    </message>
    <message>
        <source>does not begin with the number of its words.</source>
        <translation>beginnt nicht mit der Anzahl seiner Wörter.</translation>
    </message>
    <message>
        <source>has fewer words than it says and is cut short.</source>
        <translation>hat weniger Wörter, als es angibt, und ist abgeschnitten.</translation>
    </message>
    <message>
        <source>names the encoding %1, which is unknown here.</source>
        <translation>nennt die Kodierung %1, die hier unbekannt ist.</translation>
    </message>
    <message>
        <source>“%1” is not one word of at most %2 characters. Add each word by itself.</source>
        <translation>„%1“ ist kein einzelnes Wort aus höchstens %2 Zeichen. Fügen Sie jedes Wort für sich hinzu.</translation>
    </message>
    <message>
        <source>The word list “%1” is larger than %2 bytes. Make it smaller, or move it away.</source>
        <translation>Die Wortliste „%1“ ist größer als %2 Bytes. Verkleinern Sie sie, oder legen Sie sie woandershin.</translation>
    </message>
    <message>
        <source>The word list “%1” cannot be read: %2. Check who may read the file.</source>
        <translation>Die Wortliste „%1“ lässt sich nicht lesen: %2. Prüfen Sie, wer die Datei lesen darf.</translation>
    </message>
    <message>
        <source>The word list “%1” cannot be written: %2. Check the folder&apos;s permissions and the free space.</source>
        <translation>Die Wortliste „%1“ lässt sich nicht schreiben: %2. Prüfen Sie die Rechte des Ordners und den freien Platz.</translation>
    </message>
</context>
<context>
    <name>Spreadsheet</name>
    <message>
        <source>The formula is nested too deeply. Split it over several cells.</source>
        <translation>Die Formel ist zu tief verschachtelt. Verteilen Sie sie auf mehrere Zellen.</translation>
    </message>
    <message>
        <source>A closing parenthesis is missing.</source>
        <translation>Eine schließende Klammer fehlt.</translation>
    </message>
    <message>
        <source>The formula ends too early.</source>
        <translation>Die Formel endet zu früh.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot stand where it does.</source>
        <translation>„%1“ kann nicht an dieser Stelle stehen.</translation>
    </message>
    <message>
        <source>A text is not closed: a quotation mark is missing.</source>
        <translation>Ein Text ist nicht geschlossen: Ein Anführungszeichen fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no meaning here.</source>
        <translation>„%1“ hat hier keine Bedeutung.</translation>
    </message>
    <message>
        <source>The formula is longer than %1 characters. Split it over several cells.</source>
        <translation>Die Formel ist länger als %1 Zeichen. Verteilen Sie sie auf mehrere Zellen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 does not take %n argument(s).</source>
        <translation>
            <numerusform>%1 nimmt nicht ein Argument.</numerusform>
            <numerusform>%1 nimmt nicht %n Argumente.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StyleRule</name>
    <message>
        <source>Cliché: %1</source>
        <translation>Klischee: %1</translation>
    </message>
    <message>
        <source>Filler word: %1</source>
        <translation>Füllwort: %1</translation>
    </message>
    <message>
        <source>Wordy: %1 → %2</source>
        <translation>Umständlich: %1 → %2</translation>
    </message>
    <message>
        <source>Adverb: %1. Consider a stronger verb.</source>
        <translation>Adverb: %1. Vielleicht gibt es ein stärkeres Verb.</translation>
    </message>
    <message>
        <source>Passive voice: %1</source>
        <translation>Passiv: %1</translation>
    </message>
    <message>
        <source>Repeated word: %1</source>
        <translation>Wiederholtes Wort: %1</translation>
    </message>
    <message>
        <source>Long sentence (%1 words). Consider breaking it up.</source>
        <translation>Langer Satz (%1 Wörter). Vielleicht lässt er sich teilen.</translation>
    </message>
</context>
<context>
    <name>Taxonomy</name>
    <message>
        <source>“%1” is a fixed property of the category “%2”, which supplies its value for everything beneath it. An entity cannot hold its own — change it on the category, or give this one a differently-named property.</source>
        <translation>„%1“ ist eine feste Eigenschaft der Kategorie „%2“, die den Wert allem unter ihr vorgibt. Ein Eintrag kann keinen eigenen haben. Ändern Sie ihn an der Kategorie, oder geben Sie diesem Eintrag eine Eigenschaft mit anderem Namen.</translation>
    </message>
    <message>
        <source>“%1” already comes from the category “%2”. Adding it here gives this entity its own version, which overrides the inherited one for it alone.</source>
        <translation>„%1“ kommt bereits aus der Kategorie „%2“. Wenn Sie sie hier hinzufügen, erhält dieser Eintrag seine eigene Fassung, die nur bei ihm an die Stelle der geerbten tritt.</translation>
    </message>
    <message>
        <source>Reparenting there would create a cycle.</source>
        <translation>An dieser Stelle läge die Kategorie unter sich selbst. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>Cannot reparent an unknown category.</source>
        <translation>Eine unbekannte Kategorie lässt sich nicht verschieben.</translation>
    </message>
    <message>
        <source>A category can only hang under an entity of this project. Choose another place.</source>
        <translation>Eine Kategorie kann nur unter einem Eintrag dieses Projekts hängen. Wählen Sie eine andere Stelle.</translation>
    </message>
    <message>
        <source>“%1” lies beneath the category “%2”, so the category cannot hang under it. Move the entity to another category first.</source>
        <translation>„%1“ liegt unter der Kategorie „%2“; deshalb kann die Kategorie nicht unter ihm hängen. Verschieben Sie den Eintrag zuerst in eine andere Kategorie.</translation>
    </message>
    <message>
        <source>A field needs a key. Give it a name first.</source>
        <translation>Eine Eigenschaft braucht einen Schlüssel. Geben Sie ihr zuerst einen Namen.</translation>
    </message>
    <message>
        <source>A field cannot be both &quot;fixed&quot; and &quot;required&quot;: a fixed field&apos;s value is supplied once by the category, so there is nothing for an entity to be required to fill in.</source>
        <translation>Eine Eigenschaft kann nicht zugleich „fest“ und „Pflichtangabe“ sein: Einen festen Wert gibt die Kategorie einmal vor, sodass an einem Eintrag nichts auszufüllen bleibt.</translation>
    </message>
    <message>
        <source>Cannot reparent under an unknown category.</source>
        <translation>Unter eine unbekannte Kategorie lässt sich nichts verschieben.</translation>
    </message>
    <message>
        <source>“%1” is a fixed property of “%2”, which supplies its value for what takes it from there. An entity cannot hold its own — change it there, or give this one a differently-named property.</source>
        <translation>„%1“ ist eine feste Eigenschaft von „%2“, die den Wert allem vorgibt, was sie von dort übernimmt. Ein Eintrag kann keinen eigenen haben. Ändern Sie ihn dort, oder geben Sie diesem Eintrag eine Eigenschaft mit anderem Namen.</translation>
    </message>
    <message>
        <source>“%1” already comes from “%2”. Adding it here gives this entity its own version, which overrides the inherited one for it alone.</source>
        <translation>„%1“ kommt bereits von „%2“. Wenn Sie sie hier hinzufügen, erhält dieser Eintrag seine eigene Fassung, die nur bei ihm an die Stelle der übernommenen tritt.</translation>
    </message>
    <message>
        <source>The category “%2” hangs somewhere beneath “%1”, so the entity cannot move into it. Move the category elsewhere first.</source>
        <translation>Die Kategorie „%2“ hängt irgendwo unter „%1“, deshalb kann der Eintrag nicht in sie verschoben werden. Verschieben Sie zuerst die Kategorie an einen anderen Ort.</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>Sessions</source>
        <translation>Sitzungen</translation>
    </message>
    <message>
        <source>What happened last time</source>
        <translation>Was letztes Mal geschah</translation>
    </message>
    <message>
        <source>Scenes to be ready for</source>
        <translation>Szenen, die bereitliegen sollten</translation>
    </message>
    <message>
        <source>Rewards and consequences</source>
        <translation>Belohnungen und Folgen</translation>
    </message>
    <message>
        <source>Session 0</source>
        <translation>Sitzung 0</translation>
    </message>
    <message>
        <source>Who plays whom, and what kind of game it is.</source>
        <translation>Wer wen spielt und was für ein Spiel es wird.</translation>
    </message>
    <message>
        <source>Session 1</source>
        <translation>Sitzung 1</translation>
    </message>
    <message>
        <source>At the table</source>
        <translation>Am Spieltisch</translation>
    </message>
    <message>
        <source>House rules</source>
        <translation>Hausregeln</translation>
    </message>
    <message>
        <source>Secrets and clues</source>
        <translation>Geheimnisse und Hinweise</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Orte</translation>
    </message>
    <message>
        <source>What one sees first</source>
        <translation>Was man zuerst sieht</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>Gefahr</translation>
    </message>
    <message>
        <source>What can be found</source>
        <translation>Was es zu finden gibt</translation>
    </message>
    <message>
        <source>Factions</source>
        <translation>Fraktionen</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Means</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Seat</source>
        <translation>Sitz</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Figuren</translation>
    </message>
    <message>
        <source>Faction</source>
        <translation>Fraktion</translation>
    </message>
    <message>
        <source>Where to find them</source>
        <translation>Wo man sie findet</translation>
    </message>
    <message>
        <source>Player characters</source>
        <translation>Spielerfiguren</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>NPCs</source>
        <translation>Nichtspielerfiguren</translation>
    </message>
    <message>
        <source>Attitude</source>
        <translation>Haltung</translation>
    </message>
    <message>
        <source>Friendly</source>
        <translation>Freundlich</translation>
    </message>
    <message>
        <source>Indifferent</source>
        <translation>Gleichgültig</translation>
    </message>
    <message>
        <source>Hostile</source>
        <translation>Feindselig</translation>
    </message>
    <message>
        <source>Wants</source>
        <translation>Will</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Geheimnis</translation>
    </message>
    <message>
        <source>Alive</source>
        <translation>Lebt</translation>
    </message>
    <message>
        <source>On the road</source>
        <translation>Unterwegs</translation>
    </message>
    <message>
        <source>Nothing but weather</source>
        <translation>Nichts als Wetter</translation>
    </message>
    <message>
        <source>Travellers with news</source>
        <translation>Reisende mit Neuigkeiten</translation>
    </message>
    <message>
        <source>A toll that was not there last time</source>
        <translation>Ein Zoll, den es letztes Mal noch nicht gab</translation>
    </message>
    <message>
        <source>Tracks of something large</source>
        <translation>Spuren von etwas Großem</translation>
    </message>
    <message>
        <source>Someone from a player&apos;s past</source>
        <translation>Jemand aus der Vergangenheit einer Spielerfigur</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Game master</source>
        <translation>Spielleitung</translation>
    </message>
    <message>
        <source>Act One</source>
        <translation>Erster Akt</translation>
    </message>
    <message>
        <source>Who they are, what they want, and what makes it impossible to stay.</source>
        <translation>Wer sie sind, was sie wollen und warum sie nicht bleiben können.</translation>
    </message>
    <message>
        <source>Chapter 1</source>
        <translation>Kapitel 1</translation>
    </message>
    <message>
        <source>The ordinary day, and the crack in it.</source>
        <translation>Der gewöhnliche Tag und der Riss darin.</translation>
    </message>
    <message>
        <source>Chapter 2</source>
        <translation>Kapitel 2</translation>
    </message>
    <message>
        <source>What happens that cannot be undone.</source>
        <translation>Was geschieht und sich nicht ungeschehen machen lässt.</translation>
    </message>
    <message>
        <source>Chapter 3</source>
        <translation>Kapitel 3</translation>
    </message>
    <message>
        <source>The decision to go.</source>
        <translation>Der Entschluss zu gehen.</translation>
    </message>
    <message>
        <source>Act Two</source>
        <translation>Zweiter Akt</translation>
    </message>
    <message>
        <source>It gets harder, and then what they believed turns out to be wrong.</source>
        <translation>Es wird schwerer, und dann erweist sich, was sie glaubten, als falsch.</translation>
    </message>
    <message>
        <source>Chapter 4</source>
        <translation>Kapitel 4</translation>
    </message>
    <message>
        <source>New ground, new people, first costs.</source>
        <translation>Neuer Boden, neue Menschen, der erste Preis.</translation>
    </message>
    <message>
        <source>Chapter 5</source>
        <translation>Kapitel 5</translation>
    </message>
    <message>
        <source>The turn in the middle.</source>
        <translation>Die Wende in der Mitte.</translation>
    </message>
    <message>
        <source>Chapter 6</source>
        <translation>Kapitel 6</translation>
    </message>
    <message>
        <source>Everything that could hold gives way.</source>
        <translation>Alles, was noch halten könnte, gibt nach.</translation>
    </message>
    <message>
        <source>Act Three</source>
        <translation>Dritter Akt</translation>
    </message>
    <message>
        <source>What they do with what they know now.</source>
        <translation>Was sie mit dem tun, was sie jetzt wissen.</translation>
    </message>
    <message>
        <source>Chapter 7</source>
        <translation>Kapitel 7</translation>
    </message>
    <message>
        <source>The way back in.</source>
        <translation>Der Weg zurück hinein.</translation>
    </message>
    <message>
        <source>Chapter 8</source>
        <translation>Kapitel 8</translation>
    </message>
    <message>
        <source>The last confrontation.</source>
        <translation>Die letzte Begegnung.</translation>
    </message>
    <message>
        <source>Chapter 9</source>
        <translation>Kapitel 9</translation>
    </message>
    <message>
        <source>The world as it is afterwards.</source>
        <translation>Die Welt, wie sie danach ist.</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Idea</source>
        <translation>Idee</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Premise</source>
        <translation>Prämisse</translation>
    </message>
    <message>
        <source>Loose ends</source>
        <translation>Lose Enden</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Orte</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geschichte</translation>
    </message>
    <message>
        <source>Part in the story</source>
        <translation>Rolle in der Geschichte</translation>
    </message>
    <message>
        <source>Protagonist</source>
        <translation>Hauptfigur</translation>
    </message>
    <message>
        <source>Antagonist</source>
        <translation>Gegenspieler</translation>
    </message>
    <message>
        <source>Supporting</source>
        <translation>Nebenfigur</translation>
    </message>
    <message>
        <source>In passing</source>
        <translation>Randfigur</translation>
    </message>
    <message>
        <source>Needs</source>
        <translation>Braucht</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Stimme</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Zuhause</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Gegenstände</translation>
    </message>
    <message>
        <source>Why it matters</source>
        <translation>Warum es wichtig ist</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Besitzer</translation>
    </message>
    <message>
        <source>Where it is</source>
        <translation>Wo es ist</translation>
    </message>
    <message>
        <source>Novel</source>
        <translation>Roman</translation>
    </message>
    <message>
        <source>Three acts with chapters and scenes, and a codex for characters, places and items.</source>
        <translation>Drei Akte mit Kapiteln und Szenen und ein Kodex für Figuren, Orte und Gegenstände.</translation>
    </message>
    <message>
        <source>Screenplay</source>
        <translation>Drehbuch</translation>
    </message>
    <message>
        <source>Three acts of screenplay scenes, a treatment, and a codex for characters and locations.</source>
        <translation>Drei Akte mit Drehbuchszenen, ein Treatment und ein Kodex für Figuren und Orte.</translation>
    </message>
    <message>
        <source>Campaign</source>
        <translation>Kampagne</translation>
    </message>
    <message>
        <source>Sessions, characters, locations and factions for a game table, a random table, and audiences for players and game master.</source>
        <translation>Sitzungen, Figuren, Orte und Fraktionen für die Spielrunde, eine Zufallstabelle und Zielgruppen für Spieler und Spielleitung.</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Nothing at all: an empty manuscript and an empty world.</source>
        <translation>Gar nichts: ein leeres Manuskript und eine leere Welt.</translation>
    </message>
    <message>
        <source>Opening image</source>
        <translation>Eröffnungsbild</translation>
    </message>
    <message>
        <source>The world in one picture, before it changes.</source>
        <translation>Die Welt in einem Bild, bevor sie sich ändert.</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Exposition</translation>
    </message>
    <message>
        <source>Who it is about, and what is missing.</source>
        <translation>Um wen es geht und was fehlt.</translation>
    </message>
    <message>
        <source>Inciting incident</source>
        <translation>Auslösendes Ereignis</translation>
    </message>
    <message>
        <source>What sets it in motion.</source>
        <translation>Was alles in Gang setzt.</translation>
    </message>
    <message>
        <source>Into the new world</source>
        <translation>In die neue Welt</translation>
    </message>
    <message>
        <source>The first step that cannot be taken back.</source>
        <translation>Der erste Schritt, der sich nicht zurücknehmen lässt.</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>What was sought is found, or turns out false.</source>
        <translation>Das Gesuchte wird gefunden oder erweist sich als falsch.</translation>
    </message>
    <message>
        <source>All is lost</source>
        <translation>Alles ist verloren</translation>
    </message>
    <message>
        <source>The lowest point.</source>
        <translation>Der tiefste Punkt.</translation>
    </message>
    <message>
        <source>Climax</source>
        <translation>Höhepunkt</translation>
    </message>
    <message>
        <source>The choice that decides it.</source>
        <translation>Die Wahl, die alles entscheidet.</translation>
    </message>
    <message>
        <source>Final image</source>
        <translation>Schlussbild</translation>
    </message>
    <message>
        <source>The same world, seen anew.</source>
        <translation>Dieselbe Welt, neu gesehen.</translation>
    </message>
    <message>
        <source>Development</source>
        <translation>Entwicklung</translation>
    </message>
    <message>
        <source>Logline</source>
        <translation>Logline</translation>
    </message>
    <message>
        <source>The film in one sentence.</source>
        <translation>Der Film in einem Satz.</translation>
    </message>
    <message>
        <source>Treatment</source>
        <translation>Treatment</translation>
    </message>
    <message>
        <source>The film told in prose.</source>
        <translation>Der Film als Prosa erzählt.</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Schauplatz</translation>
    </message>
    <message>
        <source>Interior</source>
        <translation>Innen</translation>
    </message>
    <message>
        <source>Exterior</source>
        <translation>Außen</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beides</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Klang</translation>
    </message>
    <message>
        <source>Props</source>
        <translation>Requisiten</translation>
    </message>
    <message>
        <source>What it is used for</source>
        <translation>Wozu es gebraucht wird</translation>
    </message>
</context>
<context>
    <name>TextQuery</name>
    <message>
        <source>Type what you are looking for.</source>
        <translation>Geben Sie ein, wonach Sie suchen.</translation>
    </message>
    <message>
        <source>The regular expression cannot be read: %1 (at character %2). Correct it, or switch regular expressions off.</source>
        <translation>Der reguläre Ausdruck lässt sich nicht lesen: %1 (bei Zeichen %2). Berichtigen Sie ihn, oder schalten Sie reguläre Ausdrücke aus.</translation>
    </message>
    <message>
        <source>The regular expression is too complex for this text. Make it simpler, for example with fewer nested repetitions.</source>
        <translation>Der reguläre Ausdruck ist für diesen Text zu aufwendig. Vereinfachen Sie ihn, etwa durch weniger verschachtelte Wiederholungen.</translation>
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
        <translation>Kalender festlegen</translation>
    </message>
    <message>
        <source>Set reckonings</source>
        <translation>Zeitrechnungen festlegen</translation>
    </message>
    <message>
        <source>Rename canvas</source>
        <translation>Pinnwand umbenennen</translation>
    </message>
    <message>
        <source>Move card</source>
        <translation>Kärtchen verschieben</translation>
    </message>
    <message>
        <source>Remove card</source>
        <translation>Kärtchen entfernen</translation>
    </message>
    <message>
        <source>Connect cards</source>
        <translation>Kärtchen verbinden</translation>
    </message>
    <message>
        <source>Disconnect cards</source>
        <translation>Kärtchen trennen</translation>
    </message>
    <message>
        <source>Edit chart</source>
        <translation>Diagramm bearbeiten</translation>
    </message>
    <message>
        <source>Edit language</source>
        <translation>Sprache bearbeiten</translation>
    </message>
    <message>
        <source>Edit grammar</source>
        <translation>Grammatik bearbeiten</translation>
    </message>
    <message>
        <source>Edit orthography</source>
        <translation>Rechtschreibung bearbeiten</translation>
    </message>
    <message>
        <source>Edit phonotactics</source>
        <translation>Phonotaktik bearbeiten</translation>
    </message>
    <message>
        <source>Edit sound changes</source>
        <translation>Lautwandel bearbeiten</translation>
    </message>
    <message>
        <source>Edit writing system</source>
        <translation>Schriftsystem bearbeiten</translation>
    </message>
    <message>
        <source>Set tags</source>
        <translation>Schlagwörter festlegen</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
    <message>
        <source>Set visibility</source>
        <translation>Sichtbarkeit festlegen</translation>
    </message>
    <message>
        <source>Set AI exclusion</source>
        <translation>KI-Ausschluss festlegen</translation>
    </message>
    <message>
        <source>Edit audiences</source>
        <translation>Zielgruppen bearbeiten</translation>
    </message>
    <message>
        <source>Set the default audience</source>
        <translation>Vorgegebene Zielgruppe festlegen</translation>
    </message>
    <message>
        <source>Add object</source>
        <translation>Objekt hinzufügen</translation>
    </message>
    <message>
        <source>Remove object</source>
        <translation>Objekt entfernen</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Loslösen</translation>
    </message>
    <message>
        <source>Rename document</source>
        <translation>Dokument umbenennen</translation>
    </message>
    <message>
        <source>Edit document body</source>
        <translation>Dokumenttext bearbeiten</translation>
    </message>
    <message>
        <source>Change document kind</source>
        <translation>Dokumentart ändern</translation>
    </message>
    <message>
        <source>Edit synopsis</source>
        <translation>Synopse bearbeiten</translation>
    </message>
    <message>
        <source>Edit status</source>
        <translation>Status bearbeiten</translation>
    </message>
    <message>
        <source>Edit point of view</source>
        <translation>Perspektive bearbeiten</translation>
    </message>
    <message>
        <source>Edit tension</source>
        <translation>Spannung bearbeiten</translation>
    </message>
    <message>
        <source>Set scene date</source>
        <translation>Datum der Szene festlegen</translation>
    </message>
    <message>
        <source>Set word-count target</source>
        <translation>Wortziel festlegen</translation>
    </message>
    <message>
        <source>Edit footnotes</source>
        <translation>Fußnoten bearbeiten</translation>
    </message>
    <message>
        <source>Cite source</source>
        <translation>Quelle zitieren</translation>
    </message>
    <message>
        <source>Edit document variants</source>
        <translation>Dokumentvarianten bearbeiten</translation>
    </message>
    <message>
        <source>Edit version history</source>
        <translation>Versionsverlauf bearbeiten</translation>
    </message>
    <message>
        <source>Mark screenplay revision</source>
        <translation>Drehbuchrevision kennzeichnen</translation>
    </message>
    <message>
        <source>Move document</source>
        <translation>Dokument verschieben</translation>
    </message>
    <message>
        <source>Rename entity</source>
        <translation>Eintrag umbenennen</translation>
    </message>
    <message>
        <source>Move entity to category</source>
        <translation>Eintrag in Kategorie verschieben</translation>
    </message>
    <message>
        <source>Set aliases</source>
        <translation>Weitere Namen festlegen</translation>
    </message>
    <message>
        <source>Set entity gallery</source>
        <translation>Galerie des Eintrags festlegen</translation>
    </message>
    <message>
        <source>Edit lifespan</source>
        <translation>Lebensspanne bearbeiten</translation>
    </message>
    <message>
        <source>Change entity properties</source>
        <translation>Eigenschaften des Eintrags ändern</translation>
    </message>
    <message>
        <source>Set state over time</source>
        <translation>Zustand im Zeitverlauf festlegen</translation>
    </message>
    <message>
        <source>Update entity templates</source>
        <translation>Eintragsvorlagen ändern</translation>
    </message>
    <message>
        <source>Set field value</source>
        <translation>Wert festlegen</translation>
    </message>
    <message>
        <source>Rename map</source>
        <translation>Karte umbenennen</translation>
    </message>
    <message>
        <source>Set map image</source>
        <translation>Kartenbild festlegen</translation>
    </message>
    <message>
        <source>Edit map grid</source>
        <translation>Kartenraster bearbeiten</translation>
    </message>
    <message>
        <source>Edit map pins</source>
        <translation>Kartennadeln bearbeiten</translation>
    </message>
    <message>
        <source>Edit map regions</source>
        <translation>Kartengebiete bearbeiten</translation>
    </message>
    <message>
        <source>Edit map routes</source>
        <translation>Kartenrouten bearbeiten</translation>
    </message>
    <message>
        <source>Edit map tokens</source>
        <translation>Kartenfiguren bearbeiten</translation>
    </message>
    <message>
        <source>Set map travel settings</source>
        <translation>Reiseeinstellungen der Karte festlegen</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>Bildunterschrift bearbeiten</translation>
    </message>
    <message>
        <source>Crop image</source>
        <translation>Bild zuschneiden</translation>
    </message>
    <message>
        <source>Add annotation</source>
        <translation>Anmerkung hinzufügen</translation>
    </message>
    <message>
        <source>Remove annotation</source>
        <translation>Anmerkung entfernen</translation>
    </message>
    <message>
        <source>Edit plot threads</source>
        <translation>Handlungsstränge bearbeiten</translation>
    </message>
    <message>
        <source>Edit beat sheet</source>
        <translation>Beat-Sheet bearbeiten</translation>
    </message>
    <message>
        <source>Tag plot threads</source>
        <translation>Handlungsstränge zuordnen</translation>
    </message>
    <message>
        <source>Update saved searches</source>
        <translation>Gespeicherte Suchen ändern</translation>
    </message>
    <message>
        <source>Update mounted libraries</source>
        <translation>Eingebundene Bibliotheken ändern</translation>
    </message>
    <message>
        <source>Record property migration answer</source>
        <translation>Antwort zur Übernahme von Eigenschaften festhalten</translation>
    </message>
    <message>
        <source>Edit source</source>
        <translation>Quelle bearbeiten</translation>
    </message>
    <message>
        <source>Edit comment</source>
        <translation>Kommentar bearbeiten</translation>
    </message>
    <message>
        <source>Move comment</source>
        <translation>Kommentar verschieben</translation>
    </message>
    <message>
        <source>Rename spreadsheet</source>
        <translation>Tabelle umbenennen</translation>
    </message>
    <message>
        <source>Update spreadsheet</source>
        <translation>Tabelle ändern</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Bind spreadsheet to category</source>
        <translation>Tabelle an Kategorie binden</translation>
    </message>
    <message>
        <source>Edit cell</source>
        <translation>Zelle bearbeiten</translation>
    </message>
    <message>
        <source>Rename task</source>
        <translation>Aufgabe umbenennen</translation>
    </message>
    <message>
        <source>Edit task details</source>
        <translation>Einzelheiten der Aufgabe bearbeiten</translation>
    </message>
    <message>
        <source>Complete task</source>
        <translation>Aufgabe abschließen</translation>
    </message>
    <message>
        <source>Reopen task</source>
        <translation>Aufgabe wieder öffnen</translation>
    </message>
    <message>
        <source>Change task due date</source>
        <translation>Fälligkeit der Aufgabe ändern</translation>
    </message>
    <message>
        <source>Change task priority</source>
        <translation>Priorität der Aufgabe ändern</translation>
    </message>
    <message>
        <source>Change task status</source>
        <translation>Status der Aufgabe ändern</translation>
    </message>
    <message>
        <source>Move task to board</source>
        <translation>Aufgabe auf anderes Brett verschieben</translation>
    </message>
    <message>
        <source>Change submission details</source>
        <translation>Einzelheiten der Einreichung ändern</translation>
    </message>
    <message>
        <source>Link task</source>
        <translation>Aufgabe verknüpfen</translation>
    </message>
    <message>
        <source>Move task</source>
        <translation>Aufgabe verschieben</translation>
    </message>
    <message>
        <source>Add category</source>
        <translation>Kategorie hinzufügen</translation>
    </message>
    <message>
        <source>Remove category</source>
        <translation>Kategorie entfernen</translation>
    </message>
    <message>
        <source>Rename category</source>
        <translation>Kategorie umbenennen</translation>
    </message>
    <message>
        <source>Move category</source>
        <translation>Kategorie verschieben</translation>
    </message>
    <message>
        <source>Move category under entity</source>
        <translation>Kategorie unter Eintrag hängen</translation>
    </message>
    <message>
        <source>Set inherited properties</source>
        <translation>Übernommene Eigenschaften festlegen</translation>
    </message>
    <message>
        <source>Set excluded properties</source>
        <translation>Ausgelassene Eigenschaften festlegen</translation>
    </message>
    <message>
        <source>Add field</source>
        <translation>Eigenschaft hinzufügen</translation>
    </message>
    <message>
        <source>Remove field</source>
        <translation>Eigenschaft entfernen</translation>
    </message>
    <message>
        <source>Move field</source>
        <translation>Eigenschaft verschieben</translation>
    </message>
    <message>
        <source>Rename timeline</source>
        <translation>Zeitleiste umbenennen</translation>
    </message>
    <message>
        <source>Edit timeline event</source>
        <translation>Ereignis der Zeitleiste bearbeiten</translation>
    </message>
    <message>
        <source>Set timeline eras</source>
        <translation>Ären der Zeitleiste festlegen</translation>
    </message>
    <message>
        <source>Set timeline markers</source>
        <translation>Marken der Zeitleiste festlegen</translation>
    </message>
    <message>
        <source>Set timeline bookmarks</source>
        <translation>Lesezeichen der Zeitleiste festlegen</translation>
    </message>
    <message>
        <source>Change timeline view</source>
        <translation>Ansicht der Zeitleiste ändern</translation>
    </message>
    <message>
        <source>Update timeline view presets</source>
        <translation>Ansichtsvorgaben der Zeitleiste ändern</translation>
    </message>
    <message>
        <source>Set continuity rules</source>
        <translation>Kontinuitätsregeln festlegen</translation>
    </message>
    <message>
        <source>Edit random table</source>
        <translation>Zufallstabelle bearbeiten</translation>
    </message>
    <message>
        <source>Edit stat block</source>
        <translation>Wertekasten bearbeiten</translation>
    </message>
    <message>
        <source>Set writing goal</source>
        <translation>Schreibziel festlegen</translation>
    </message>
    <message>
        <source>Rename project</source>
        <translation>Projekt umbenennen</translation>
    </message>
    <message>
        <source>Change project settings</source>
        <translation>Projekteinstellungen ändern</translation>
    </message>
    <message>
        <source>Replace in the project</source>
        <translation>Im Projekt ersetzen</translation>
    </message>
    <message>
        <source>Set proofreading</source>
        <translation>Korrektur einstellen</translation>
    </message>
    <message>
        <source>Set language of document</source>
        <translation>Sprache des Dokuments festlegen</translation>
    </message>
    <message>
        <source>Ignore finding</source>
        <translation>Hinweis ignorieren</translation>
    </message>
    <message>
        <source>Report ignored findings</source>
        <translation>Ignorierte Hinweise wieder melden</translation>
    </message>
    <message>
        <source>Take proofreading choices into the project</source>
        <translation>Korrektureinstellungen in das Projekt übernehmen</translation>
    </message>
</context>
<context>
    <name>ValueText</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>WordsSuffix</name>
    <message numerus="yes">
        <source> words</source>
        <translation>
            <numerusform> Wort</numerusform>
            <numerusform> Wörter</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>The project could not be found: %1</source>
        <translation>Das Projekt wurde nicht gefunden: %1</translation>
    </message>
    <message>
        <source>The file project.json is missing in %1. If a sync client is still at work there, wait until it is done; otherwise bring the file back from a backup, or put an empty one with {} in its place.</source>
        <translation>In %1 fehlt die Datei project.json. Falls dort noch ein Synchronisierungsprogramm arbeitet, warten Sie, bis es fertig ist; sonst holen Sie die Datei aus einer Sicherung zurück, oder legen Sie an ihre Stelle eine leere mit dem Inhalt {}.</translation>
    </message>
    <message>
        <source>The folder %1 holds no project. Choose the folder that holds project.json, or make a new project.</source>
        <translation>Der Ordner %1 enthält kein Projekt. Wählen Sie den Ordner, in dem project.json liegt, oder legen Sie ein neues Projekt an.</translation>
    </message>
    <message>
        <source>Could not copy &apos;%1&apos; to the new place. Free some space or choose another folder, then save again.</source>
        <translation>„%1“ ließ sich nicht an den neuen Ort kopieren. Schaffen Sie Platz oder wählen Sie einen anderen Ordner, und speichern Sie dann noch einmal.</translation>
    </message>
    <message>
        <source>This project has no save location yet; use saveAs().</source>
        <translation>Dieses Projekt hat noch keinen Speicherort; wählen Sie „Speichern unter“.</translation>
    </message>
    <message>
        <source>The folder %1 already holds a project. Choose an empty folder or a new name.</source>
        <translation>Der Ordner %1 enthält schon ein Projekt. Wählen Sie einen leeren Ordner oder einen neuen Namen.</translation>
    </message>
    <message>
        <source>Cannot create project folder: %1</source>
        <translation>Der Projektordner lässt sich nicht anlegen: %1</translation>
    </message>
    <message>
        <source>This project has no save location to reload from.</source>
        <translation>Dieses Projekt hat keinen Speicherort, von dem es neu geladen werden könnte.</translation>
    </message>
    <message>
        <source>The project cannot be read anew while a change is under way. Try again in a moment.</source>
        <translation>Das Projekt lässt sich nicht neu lesen, während eine Änderung läuft. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The library %1 could not be read: %2</source>
        <translation>Die Bibliothek %1 ließ sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>Restored unsaved changes from your last session into %1.</source>
        <translation>Ungespeicherte Änderungen Ihrer letzten Sitzung wurden in %1 wiederhergestellt.</translation>
    </message>
    <message>
        <source>Project File Changed</source>
        <translation>Projektdatei geändert</translation>
    </message>
    <message>
        <source>%1 was changed outside Vellory, so the file&apos;s version was loaded. Your previous local working state was backed up to:
%2</source>
        <translation>%1 wurde außerhalb von Vellory geändert; deshalb wurde die Fassung der Datei geladen. Ihr bisheriger Arbeitsstand wurde gesichert unter:
%2</translation>
    </message>
    <message>
        <source>Unsaved Changes Kept Aside</source>
        <translation>Ungespeicherte Änderungen beiseitegelegt</translation>
    </message>
    <message>
        <source>Your last session left changes that are not in %1 and could not be read, so the file&apos;s version was loaded. The changes were backed up to:
%2</source>
        <translation>Ihre letzte Sitzung hat Änderungen hinterlassen, die nicht in %1 stehen und nicht lesbar waren; deshalb wurde die Fassung der Datei geladen. Die Änderungen wurden gesichert unter:
%2</translation>
    </message>
    <message>
        <source>This is no project: %1. Choose a .vellory file, or the folder that holds project.json.</source>
        <translation>Das ist kein Projekt: %1. Wählen Sie eine .vellory-Datei oder den Ordner, in dem project.json liegt.</translation>
    </message>
    <message>
        <source>What %1 holds was loaded. Other changes that were kept for it were backed up to %2.</source>
        <translation>Geladen wurde, was in %1 steht. Andere Änderungen, die dafür aufbewahrt waren, wurden gesichert als %2.</translation>
    </message>
    <message>
        <source>The disk of %1 is full. Free some space there, then try again.</source>
        <translation>Der Datenträger von %1 ist voll. Schaffen Sie dort Platz, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>Nothing may be written in %1. Allow it there, or choose another place, then try again.</source>
        <translation>In %1 darf nicht geschrieben werden. Erlauben Sie es dort, oder wählen Sie einen anderen Ort, und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message numerus="yes">
        <source>%n item(s) stand under themselves or under something that is missing; they are shown at the top level.</source>
        <translation>
            <numerusform>%n Element steht unter sich selbst oder unter etwas, das fehlt; es wird auf der obersten Ebene gezeigt.</numerusform>
            <numerusform>%n Elemente stehen unter sich selbst oder unter etwas, das fehlt; sie werden auf der obersten Ebene gezeigt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::calendar::CalendarDialog</name>
    <message>
        <source>Edit Calendar</source>
        <translation>Kalender bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Kalender</translation>
    </message>
    <message>
        <source>&amp;Reckonings</source>
        <translation>&amp;Zeitrechnungen</translation>
    </message>
    <message>
        <source>No event moves: every date keeps its day and is read in the new calendar.</source>
        <translation>Kein Ereignis verschiebt sich: jedes Datum behält seinen Tag und wird im neuen Kalender gelesen.</translation>
    </message>
    <message>
        <source>Apply Calendar</source>
        <translation>Kalender übernehmen</translation>
    </message>
    <message>
        <source>Edit calendar</source>
        <translation>Kalender bearbeiten</translation>
    </message>
</context>
<context>
    <name>tw::desktop::calendar::CalendarForm</name>
    <message>
        <source>Months</source>
        <translation>Monate</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>New month</source>
        <translation>Neuer Monat</translation>
    </message>
    <message>
        <source>Weekdays</source>
        <translation>Wochentage</translation>
    </message>
    <message>
        <source>No weekdays yet.</source>
        <translation>Noch keine Wochentage.</translation>
    </message>
    <message>
        <source>Named eras</source>
        <translation>Benannte Ären</translation>
    </message>
    <message>
        <source>Era</source>
        <translation>Ära</translation>
    </message>
    <message>
        <source>First year</source>
        <translation>Erstes Jahr</translation>
    </message>
    <message>
        <source>Counts down</source>
        <translation>Zählt rückwärts</translation>
    </message>
    <message>
        <source>New era</source>
        <translation>Neue Ära</translation>
    </message>
    <message>
        <source>A&amp;dd Weekday</source>
        <translation>Wochentag &amp;hinzufügen</translation>
    </message>
    <message>
        <source>New weekday</source>
        <translation>Neuer Wochentag</translation>
    </message>
    <message>
        <source>&amp;Months</source>
        <translation>&amp;Monate</translation>
    </message>
    <message>
        <source>&amp;Weekdays, from the first day of year 1</source>
        <translation>&amp;Wochentage, ab dem ersten Tag des Jahres 1</translation>
    </message>
    <message>
        <source>&amp;Era after every year, while no era is named</source>
        <translation>&amp;Ära hinter jedem Jahr, solange keine benannt ist</translation>
    </message>
    <message>
        <source>&amp;Named eras</source>
        <translation>&amp;Benannte Ären</translation>
    </message>
    <message numerus="yes">
        <source>%n days a year. Year 1 begins on %1, %2.</source>
        <translation>
            <numerusform>%n Tag im Jahr. Das Jahr 1 beginnt am %1, %2.</numerusform>
            <numerusform>%n Tage im Jahr. Das Jahr 1 beginnt am %1, %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::calendar::ReckoningsForm</name>
    <message>
        <source>Reckonings</source>
        <translation>Zeitrechnungen</translation>
    </message>
    <message>
        <source>No reckonings: add one to tell the same days in another count of years.</source>
        <translation>Keine Zeitrechnungen: Fügen Sie eine hinzu, um dieselben Tage mit anderer Jahreszählung zu nennen.</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Era</source>
        <translation>&amp;Ära</translation>
    </message>
    <message>
        <source>Year &amp;1 is the calendar’s year</source>
        <translation>Jahr &amp;1 ist im Kalender das Jahr</translation>
    </message>
    <message>
        <source>&amp;Add Reckoning</source>
        <translation>Zeitrechnung &amp;hinzufügen</translation>
    </message>
    <message>
        <source>New reckoning</source>
        <translation>Neue Zeitrechnung</translation>
    </message>
    <message>
        <source>%1 is %2 here.</source>
        <translation>%1 ist hier %2.</translation>
    </message>
    <message>
        <source>Its named eras stand in place of the era.</source>
        <translation>Ihre benannten Ären stehen anstelle der Ära.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::calendar::RowTable</name>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::CategoryChooser</name>
    <message>
        <source>Find a category</source>
        <translation>Kategorie suchen</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>No category</source>
        <translation>Keine Kategorie</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::CategoryPropertiesDialog</name>
    <message>
        <source>fixed: %1</source>
        <translation>fest: %1</translation>
    </message>
    <message>
        <source>required</source>
        <translation>Pflichtangabe</translation>
    </message>
    <message>
        <source>Properties of “%1”</source>
        <translation>Eigenschaften von „%1“</translation>
    </message>
    <message>
        <source>Save Properties</source>
        <translation>Eigenschaften speichern</translation>
    </message>
    <message>
        <source>Properties declared here</source>
        <translation>Hier festgelegte Eigenschaften</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Bearbeiten…</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Entfe&amp;rnen</translation>
    </message>
    <message>
        <source>Properties taken from “%1”</source>
        <translation>Von „%1“ übernommene Eigenschaften</translation>
    </message>
    <message>
        <source>Inherited properties to leave out</source>
        <translation>Geerbte Eigenschaften, die ausgelassen werden</translation>
    </message>
    <message>
        <source>A category under an entity starts with NO inherited properties — nothing crosses from an entity unless the category asks for it. Tick what it asks for.</source>
        <translation>Eine Kategorie unter einem Eintrag beginnt OHNE geerbte Eigenschaften. Von einem Eintrag kommt nur herüber, was die Kategorie verlangt. Kreuzen Sie es an.</translation>
    </message>
    <message>
        <source>Ticking a property hides it; values already entered stay exactly where they are and come back the moment you untick it.</source>
        <translation>Ein Häkchen blendet die Eigenschaft aus. Schon eingetragene Werte bleiben, wo sie sind, und erscheinen wieder, sobald Sie das Häkchen entfernen.</translation>
    </message>
    <message>
        <source>%1 (from %2)</source>
        <translation>%1 (aus %2)</translation>
    </message>
    <message>
        <source>New Property</source>
        <translation>Neue Eigenschaft</translation>
    </message>
    <message>
        <source>Add Property</source>
        <translation>Eigenschaft hinzufügen</translation>
    </message>
    <message>
        <source>Property “%1”</source>
        <translation>Eigenschaft „%1“</translation>
    </message>
    <message>
        <source>Change Property</source>
        <translation>Eigenschaft ändern</translation>
    </message>
    <message>
        <source>Values already entered are kept — but nothing will show them. Undo puts the property back with its data.</source>
        <translation>Schon eingetragene Werte bleiben erhalten, doch nichts zeigt sie mehr an. „Rückgängig“ stellt die Eigenschaft mit ihren Daten wieder her.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::CodexModel</name>
    <message>
        <source>Uncategorised</source>
        <translation>Ohne Kategorie</translation>
    </message>
    <message>
        <source>%1, also called %2</source>
        <translation>%1, auch %2 genannt</translation>
    </message>
    <message>
        <source>Entities without a category</source>
        <translation>Einträge ohne Kategorie</translation>
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
        <translation>Von der Welt ist noch nichts da. Mit + legen Sie die erste Person, den ersten Ort oder Gegenstand an.</translation>
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
        <translation>Gesperrte Einträge bleiben. Um sie zu entfernen, entsperren Sie sie im Inspektor.</translation>
    </message>
    <message>
        <source>Removed “%1”. Undo brings it back.</source>
        <translation>„%1“ entfernt. „Rückgängig“ holt den Eintrag zurück.</translation>
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
        <translation>Kategorie „%1“ entfernt. „Rückgängig“ holt sie zurück.</translation>
    </message>
    <message>
        <source>Removed the category “%1”. Its subcategories moved up. Undo brings it back.</source>
        <translation>Kategorie „%1“ entfernt. Ihre Unterkategorien sind nach oben gerückt. „Rückgängig“ holt sie zurück.</translation>
    </message>
    <message>
        <source>Removed the category “%1”. Its entities moved up to “%2”. Undo brings it back.</source>
        <translation>Kategorie „%1“ entfernt. Ihre Einträge gehören jetzt zu „%2“. „Rückgängig“ holt sie zurück.</translation>
    </message>
    <message>
        <source>Removed the category “%1”. Its entities have no category now. Undo brings it back.</source>
        <translation>Kategorie „%1“ entfernt. Ihre Einträge haben jetzt keine Kategorie. „Rückgängig“ holt sie zurück.</translation>
    </message>
    <message>
        <source>Delete “%1”? Its entities move up to the parent. Edit › Undo will restore it.</source>
        <translation>„%1“ löschen? Ihre Einträge rücken zur übergeordneten Kategorie auf. Bearbeiten › Rückgängig stellt sie wieder her.</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n categories? Their entities move up to the parent. Edit › Undo will restore them.</source>
        <translation>
            <numerusform>%n Kategorie löschen? Ihre Einträge rücken zur übergeordneten Kategorie auf. Bearbeiten › Rückgängig stellt sie wieder her.</numerusform>
            <numerusform>%n Kategorien löschen? Ihre Einträge rücken zur übergeordneten Kategorie auf. Bearbeiten › Rückgängig stellt sie wieder her.</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete Category</source>
        <translation>Kategorie löschen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::EntityHeading</name>
    <message>
        <source>Move to another category</source>
        <translation>In eine andere Kategorie verschieben</translation>
    </message>
    <message>
        <source>Add another name</source>
        <translation>Weiteren Namen hinzufügen</translation>
    </message>
    <message>
        <source>Other names</source>
        <translation>Weitere Namen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>No category</source>
        <translation>Keine Kategorie</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::EntityPage</name>
    <message>
        <source>This entity is locked. Unlock it in the inspector to edit it.</source>
        <translation>Dieser Eintrag ist gesperrt. Um ihn zu bearbeiten, entsperren Sie ihn im Inspektor.</translation>
    </message>
    <message>
        <source>%1 of %2 properties filled in</source>
        <translation>%1 von %2 Eigenschaften ausgefüllt</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Eintrag</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::EventsSection</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::FieldDialog</name>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Ja oder nein</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Verweis</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Web address</source>
        <translation>Internetadresse</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Must be filled in</source>
        <translation>Muss ausgefüllt werden</translation>
    </message>
    <message>
        <source>Fixed: the same for everything beneath</source>
        <translation>Fest: für alles darunter gleich</translation>
    </message>
    <message>
        <source>Anything in the codex</source>
        <translation>Alles im Kodex</translation>
    </message>
    <message>
        <source>One choice on each line</source>
        <translation>Je Zeile eine Möglichkeit</translation>
    </message>
    <message>
        <source>What belongs in here</source>
        <translation>Was hier hineingehört</translation>
    </message>
    <message>
        <source>The value a fixed field supplies to everything beneath it.</source>
        <translation>Der Wert, den eine feste Eigenschaft allem darunter vorgibt.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Möglichkeiten</translation>
    </message>
    <message>
        <source>Points to</source>
        <translation>Verweist auf</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Fixed value</source>
        <translation>Fester Wert</translation>
    </message>
    <message>
        <source>A category that is gone</source>
        <translation>Eine Kategorie, die es nicht mehr gibt</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::FieldsSection</name>
    <message>
        <source>Add Property…</source>
        <translation>Eigenschaft hinzufügen…</translation>
    </message>
    <message>
        <source>Add a property that this entity alone has</source>
        <translation>Eine Eigenschaft hinzufügen, die nur dieser Eintrag hat</translation>
    </message>
    <message>
        <source>Edit or remove this property</source>
        <translation>Diese Eigenschaft bearbeiten oder entfernen</translation>
    </message>
    <message>
        <source>&amp;Edit Property…</source>
        <translation>Eigenschaft &amp;bearbeiten…</translation>
    </message>
    <message>
        <source>&amp;Remove Property</source>
        <translation>Eigenschaft entfe&amp;rnen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::GallerySection</name>
    <message>
        <source>Gallery</source>
        <translation>Galerie</translation>
    </message>
    <message>
        <source>Add Pictures…</source>
        <translation>Bilder hinzufügen…</translation>
    </message>
    <message>
        <source>Add Pictures</source>
        <translation>Bilder hinzufügen</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>Move &amp;Earlier</source>
        <translation>Nach &amp;vorn</translation>
    </message>
    <message>
        <source>Move &amp;Later</source>
        <translation>Nach &amp;hinten</translation>
    </message>
    <message>
        <source>&amp;Remove from Gallery</source>
        <translation>Aus der Galerie &amp;entfernen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::HiddenValuesSection</name>
    <message>
        <source>Kept, but no property shows it</source>
        <translation>Aufbewahrt, aber von keiner Eigenschaft angezeigt</translation>
    </message>
    <message>
        <source>These values show again when a property with their key reaches the entity.</source>
        <translation>Diese Werte erscheinen wieder, sobald den Eintrag eine Eigenschaft mit ihrem Schlüssel erreicht.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::LifespanSection</name>
    <message>
        <source>Lifespan</source>
        <translation>Lebensspanne</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>The end lies before the beginning.</source>
        <translation>Das Ende liegt vor dem Anfang.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::MentionsSection</name>
    <message>
        <source>Mentions</source>
        <translation>Erwähnungen</translation>
    </message>
    <message>
        <source>Reading the manuscript…</source>
        <translation>Das Manuskript wird gelesen…</translation>
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
        <translation>Noch kein Dokument nennt ihn.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::PropertyCleanUpDialog</name>
    <message>
        <source>Clean Up Properties</source>
        <translation>Eigenschaften aufräumen</translation>
    </message>
    <message>
        <source>A property that only one entity of its category uses can belong to that entity alone, and categories that are one and the same can become one. No value is changed or lost, and a backup is made first.</source>
        <translation>Eine Eigenschaft, die nur ein Eintrag ihrer Kategorie nutzt, kann diesem Eintrag allein gehören, und Kategorien, die ein und dieselbe sind, können eine werden. Kein Wert wird geändert oder geht verloren, und vorher entsteht eine Sicherung.</translation>
    </message>
    <message numerus="yes">
        <source>%n more can be put in order once their entities are unlocked.</source>
        <translation>
            <numerusform>%n weitere lässt sich aufräumen, sobald der Eintrag entsperrt ist.</numerusform>
            <numerusform>%n weitere lassen sich aufräumen, sobald ihre Einträge entsperrt sind.</numerusform>
        </translation>
    </message>
    <message>
        <source>Back Up and Clean Up</source>
        <translation>Sichern und aufräumen</translation>
    </message>
    <message>
        <source>What to clean up</source>
        <translation>Was aufzuräumen ist</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>Properties that one entity uses</source>
        <translation>Eigenschaften, die ein Eintrag nutzt</translation>
    </message>
    <message>
        <source>Categories written two ways</source>
        <translation>Kategorien in zwei Schreibweisen</translation>
    </message>
    <message numerus="yes">
        <source>%n entities move</source>
        <translation>
            <numerusform>%n Eintrag zieht um</numerusform>
            <numerusform>%n Einträge ziehen um</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to clean up: every property is where it is used, and no category is written two ways.</source>
        <translation>Es gibt nichts aufzuräumen: Jede Eigenschaft steht dort, wo sie gebraucht wird, und keine Kategorie kommt in zwei Schreibweisen vor.</translation>
    </message>
    <message>
        <source>Clean up properties</source>
        <translation>Eigenschaften aufräumen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::TimedValueDialog</name>
    <message>
        <source>State over Time</source>
        <translation>Zustand im Zeitverlauf</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Ab</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Change State</source>
        <translation>Zustand ändern</translation>
    </message>
    <message>
        <source>Add State</source>
        <translation>Zustand hinzufügen</translation>
    </message>
    <message>
        <source>Enter the date from which the value holds.</source>
        <translation>Geben Sie das Datum ein, ab dem der Wert gilt.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::codex::TimedValuesSection</name>
    <message>
        <source>State over time</source>
        <translation>Zustand im Zeitverlauf</translation>
    </message>
    <message>
        <source>Add State…</source>
        <translation>Zustand hinzufügen…</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Ändern…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::composition::CompositionPage</name>
    <message>
        <source>Continuous text</source>
        <translation>Durchgehender Text</translation>
    </message>
    <message>
        <source>Manuscript</source>
        <translation>Manuskript</translation>
    </message>
    <message numerus="yes">
        <source>%Ln words</source>
        <translation>
            <numerusform>%Ln Wort</numerusform>
            <numerusform>%Ln Wörter</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
</context>
<context>
    <name>tw::desktop::composition::SceneColumn</name>
    <message>
        <source>No documents in here yet. Press Ctrl+Shift+N to write the first one.</source>
        <translation>Hier sind noch keine Dokumente. Strg+Umschalt+N beginnt das erste.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::composition::SceneSlot</name>
    <message>
        <source>Open this document by itself</source>
        <translation>Dieses Dokument für sich öffnen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::continuity::ContinuityProblems</name>
    <message>
        <source>Continuity</source>
        <translation>Kontinuität</translation>
    </message>
</context>
<context>
    <name>tw::desktop::continuity::RuleForm</name>
    <message>
        <source>On</source>
        <translation>Am</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>Na&amp;me</translation>
    </message>
    <message>
        <source>&amp;Entity</source>
        <translation>&amp;Eintrag</translation>
    </message>
    <message>
        <source>&amp;Property</source>
        <translation>Ei&amp;genschaft</translation>
    </message>
    <message>
        <source>&amp;Comparison</source>
        <translation>&amp;Vergleich</translation>
    </message>
    <message>
        <source>&amp;Value</source>
        <translation>&amp;Wert</translation>
    </message>
    <message>
        <source>Without a date, what the property says at present counts.</source>
        <translation>Ohne Datum zählt, was die Eigenschaft gegenwärtig sagt.</translation>
    </message>
    <message>
        <source>The entity of this rule is no longer there.</source>
        <translation>Den Eintrag dieser Regel gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>There is no entity, or more than one, called “%1”.</source>
        <translation>Es gibt keinen Eintrag namens „%1“, oder mehr als einen.</translation>
    </message>
    <message>
        <source>One value, or another: red|green</source>
        <translation>Ein Wert, oder ein anderer: rot|grün</translation>
    </message>
</context>
<context>
    <name>tw::desktop::continuity::RulesDialog</name>
    <message>
        <source>Every rule needs a name.</source>
        <translation>Jede Regel braucht einen Namen.</translation>
    </message>
    <message>
        <source>Two rules are called “%1”. Give one of them another name.</source>
        <translation>Zwei Regeln heißen „%1“. Geben Sie einer einen anderen Namen.</translation>
    </message>
    <message>
        <source>Choose the entity that “%1” is about.</source>
        <translation>Wählen Sie den Eintrag, den „%1“ betrifft.</translation>
    </message>
    <message>
        <source>Choose the property that “%1” looks at.</source>
        <translation>Wählen Sie die Eigenschaft, die „%1“ prüft.</translation>
    </message>
    <message>
        <source>Continuity rules</source>
        <translation>Kontinuitätsregeln</translation>
    </message>
    <message>
        <source>No rules: add one to hear when an entity is not what the story needs.</source>
        <translation>Keine Regeln: Fügen Sie eine hinzu, um zu erfahren, wenn ein Eintrag nicht so ist, wie die Geschichte ihn braucht.</translation>
    </message>
    <message>
        <source>Continuity Rules</source>
        <translation>Kontinuitätsregeln</translation>
    </message>
    <message>
        <source>&amp;Add Rule</source>
        <translation>Regel &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Apply Rules</source>
        <translation>Regeln übernehmen</translation>
    </message>
    <message>
        <source>New rule</source>
        <translation>Neue Regel</translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::BooleanValueEditor</name>
    <message>
        <source>Yes, no, not set: a click goes on to the next</source>
        <translation>Ja, nein, nicht festgelegt: Ein Klick geht weiter</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>Neither yes nor no. It is kept until you choose.</source>
        <translation>Weder Ja noch Nein. Es bleibt stehen, bis Sie wählen.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::ChipButton</name>
    <message>
        <source>Remove “%1”</source>
        <translation>„%1“ entfernen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::ChoiceValueEditor</name>
    <message>
        <source>Not set</source>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>%1 (not among the choices)</source>
        <translation>%1 (nicht unter den Möglichkeiten)</translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::DateValueEditor</name>
    <message>
        <source>“%1” is not a date. It is kept until you enter one.</source>
        <translation>„%1“ ist kein Datum. Der Text bleibt stehen, bis Sie eines eingeben.</translation>
    </message>
    <message>
        <source>Remove this text</source>
        <translation>Diesen Text entfernen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::ListEditor</name>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::NumberValueEditor</name>
    <message>
        <source>“%1” is not a number, so it is not stored. Write digits and a point, like 1250 or 3.5.</source>
        <translation>„%1“ ist keine Zahl und wird deshalb nicht gespeichert. Schreiben Sie Ziffern und einen Punkt, etwa 1250 oder 3.5.</translation>
    </message>
    <message>
        <source>Not a number. It is kept until you write one.</source>
        <translation>Keine Zahl. Der Text bleibt stehen, bis Sie eine schreiben.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::ReferenceValueEditor</name>
    <message>
        <source>Add by name</source>
        <translation>Nach Namen hinzufügen</translation>
    </message>
    <message>
        <source>Open “%1”</source>
        <translation>„%1“ öffnen</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Nothing in this project answers to “%1”. It is kept.</source>
        <translation>In diesem Projekt hört nichts auf „%1“. Der Verweis bleibt erhalten.</translation>
    </message>
    <message>
        <source>No single entity is called “%1” here. Choose one from the list that appears as you type.</source>
        <translation>Hier heißt nicht genau ein Eintrag „%1“. Wählen Sie einen aus der Liste, die beim Tippen erscheint.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::StoryDateEdit</name>
    <message>
        <source>No date</source>
        <translation>Kein Datum</translation>
    </message>
    <message>
        <source>Reads as %1</source>
        <translation>Gelesen als %1</translation>
    </message>
    <message>
        <source>Not a date this calendar can read. Write it like “%1” or just a year.</source>
        <translation>Dieses Datum kann der Kalender nicht lesen. Schreiben Sie es wie „%1“ oder nur ein Jahr.</translation>
    </message>
    <message>
        <source>Story date</source>
        <translation>Handlungszeit</translation>
    </message>
</context>
<context>
    <name>tw::desktop::fields::UrlValueEditor</name>
    <message>
        <source>Open in the browser</source>
        <translation>Im Browser öffnen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::finder::FinderModel</name>
    <message>
        <source>not available now</source>
        <translation>jetzt nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>tw::desktop::finder::FinderPopup</name>
    <message>
        <source>What was found</source>
        <translation>Was gefunden wurde</translation>
    </message>
</context>
<context>
    <name>tw::desktop::finder::GoToFinder</name>
    <message>
        <source>Go to</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Type a few letters of a title – Ctrl+Return opens it in the other pane</source>
        <translation>Einige Buchstaben eines Titels eingeben – Strg+Eingabe öffnet im anderen Bereich</translation>
    </message>
    <message>
        <source>Here stands what you have visited. Type to find documents and entities by their titles.</source>
        <translation>Hier steht, was Sie besucht haben. Geben Sie Buchstaben ein, um Dokumente und Einträge nach ihren Titeln zu finden.</translation>
    </message>
    <message>
        <source>Nothing has these letters in its title. Type fewer, or press Escape and search the texts with Find in the Project.</source>
        <translation>Kein Titel enthält diese Buchstaben. Geben Sie weniger ein, oder drücken Sie Esc und durchsuchen Sie die Texte mit „Im Projekt suchen“.</translation>
    </message>
    <message>
        <source>library %1</source>
        <translation>Bibliothek %1</translation>
    </message>
</context>
<context>
    <name>tw::desktop::goals::GoalsDialog</name>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>The target is reached.</source>
        <translation>Das Ziel ist erreicht.</translation>
    </message>
    <message numerus="yes">
        <source>Words on %Ln days in a row.</source>
        <translation>
            <numerusform>Wörter an %Ln Tag in Folge.</numerusform>
            <numerusform>Wörter an %Ln Tagen in Folge.</numerusform>
        </translation>
    </message>
    <message>
        <source>De&amp;adline</source>
        <translation>&amp;Frist</translation>
    </message>
    <message>
        <source>Writing Goals</source>
        <translation>Schreibziele</translation>
    </message>
    <message>
        <source>Deadline</source>
        <translation>Frist</translation>
    </message>
    <message>
        <source>&amp;Manuscript</source>
        <translation>&amp;Manuskript</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Tag</translation>
    </message>
    <message>
        <source>Set Goals</source>
        <translation>Ziele setzen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln words written, %1 of them today.</source>
        <translation>
            <numerusform>%Ln Wort geschrieben, davon %1 heute.</numerusform>
            <numerusform>%Ln Wörter geschrieben, davon %1 heute.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The deadline has passed with %Ln words to go.</source>
        <translation>
            <numerusform>Die Frist ist verstrichen, es fehlt %Ln Wort.</numerusform>
            <numerusform>Die Frist ist verstrichen, es fehlen %Ln Wörter.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 a day for %Ln days.</source>
        <translation>
            <numerusform>%1: %2 am Tag, %Ln Tag lang.</numerusform>
            <numerusform>%1: %2 am Tag, %Ln Tage lang.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln words to go</source>
        <translation>
            <numerusform>Noch %Ln Wort</numerusform>
            <numerusform>Noch %Ln Wörter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln words to go.</source>
        <translation>
            <numerusform>Noch %Ln Wort.</numerusform>
            <numerusform>Noch %Ln Wörter.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::goals::ProgressChart</name>
    <message>
        <source>Words of the last days</source>
        <translation>Wörter der letzten Tage</translation>
    </message>
    <message numerus="yes">
        <source>%Ln words</source>
        <translation>
            <numerusform>%Ln Wort</numerusform>
            <numerusform>%Ln Wörter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln days</source>
        <translation>
            <numerusform>%1 in %Ln Tag</numerusform>
            <numerusform>%1 in %Ln Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln words</source>
        <translation>
            <numerusform>%1: %Ln Wort</numerusform>
            <numerusform>%1: %Ln Wörter</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::inspector::DocumentSection</name>
    <message>
        <source>S&amp;ynopsis</source>
        <translation>S&amp;ynopse</translation>
    </message>
    <message>
        <source>Tar&amp;get</source>
        <translation>Z&amp;iel</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>Dok&amp;umentart</translation>
    </message>
    <message>
        <source>What happens here, in a few sentences</source>
        <translation>Was hier geschieht, in wenigen Sätzen</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Synopse</translation>
    </message>
    <message>
        <source>Prose</source>
        <translation>Prosa</translation>
    </message>
    <message>
        <source>Screenplay</source>
        <translation>Drehbuch</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Sto&amp;ry date</source>
        <translation>Handlungs&amp;zeit</translation>
    </message>
    <message>
        <source>Stat&amp;us</source>
        <translation>S&amp;tatus</translation>
    </message>
    <message>
        <source>Poi&amp;nt of view</source>
        <translation>Per&amp;spektive</translation>
    </message>
    <message>
        <source>Ten&amp;sion</source>
        <translation>Spa&amp;nnung</translation>
    </message>
</context>
<context>
    <name>tw::desktop::inspector::InspectorPanel</name>
    <message>
        <source>Select a document or an entity to see its properties.</source>
        <translation>Wählen Sie ein Dokument oder einen Eintrag, um die Eigenschaften zu sehen.</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
</context>
<context>
    <name>tw::desktop::inspector::ObjectSection</name>
    <message>
        <source>&amp;Locked</source>
        <translation>Gespe&amp;rrt</translation>
    </message>
    <message>
        <source>E&amp;xclude from AI</source>
        <translation>&amp;Von der KI ausschließen</translation>
    </message>
    <message>
        <source>T&amp;ags</source>
        <translation>Sch&amp;lagwörter</translation>
    </message>
    <message>
        <source>Plot threads</source>
        <translation>Handlungsstränge</translation>
    </message>
    <message>
        <source>Visible to</source>
        <translation>Sichtbar für</translation>
    </message>
    <message>
        <source>With none ticked, every audience sees it.</source>
        <translation>Ohne Häkchen sieht es jede Zielgruppe.</translation>
    </message>
    <message>
        <source>Separated by commas</source>
        <translation>Durch Kommas getrennt</translation>
    </message>
    <message>
        <source>Pinne&amp;d</source>
        <translation>An&amp;geheftet</translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::BodyEditor</name>
    <message>
        <source>Text of the document</source>
        <translation>Text des Dokuments</translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::DocumentActions</name>
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
        <translation>Neues Dokument d&amp;arin</translation>
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
        <translation>Dokument &amp;umbenennen</translation>
    </message>
    <message>
        <source>Move Document &amp;Up</source>
        <translation>Dokument nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Document Do&amp;wn</source>
        <translation>Dokument nach u&amp;nten</translation>
    </message>
    <message>
        <source>Move Document &amp;In</source>
        <translation>Dokument e&amp;inrücken</translation>
    </message>
    <message>
        <source>Move Document &amp;Out</source>
        <translation>Dokument ausrü&amp;cken</translation>
    </message>
    <message>
        <source>&amp;Remove Document</source>
        <translation>Dokument ent&amp;fernen</translation>
    </message>
    <message>
        <source>“%1” is locked. Unlock it in the inspector to remove it.</source>
        <translation>„%1“ ist gesperrt. Zum Entfernen entsperren Sie es im Inspektor.</translation>
    </message>
    <message>
        <source>Removed “%1”. Undo brings it back.</source>
        <translation>„%1“ entfernt. Rückgängig holt es zurück.</translation>
    </message>
    <message numerus="yes">
        <source>Removed %n documents with all that was in them. Undo brings them back.</source>
        <translation>
            <numerusform>%n Dokument mit allem darin entfernt. Rückgängig holt es zurück.</numerusform>
            <numerusform>%n Dokumente mit allem darin entfernt. Rückgängig holt sie zurück.</numerusform>
        </translation>
    </message>
    <message>
        <source>No Status</source>
        <translation>Kein Status</translation>
    </message>
    <message>
        <source>Set status</source>
        <translation>Status setzen</translation>
    </message>
    <message>
        <source>S&amp;tatus</source>
        <translation>&amp;Status</translation>
    </message>
    <message>
        <source>“%1” is locked. Unlock it in the inspector to move it.</source>
        <translation>„%1“ ist gesperrt. Zum Verschieben entsperren Sie es im Inspektor.</translation>
    </message>
    <message>
        <source>“%1” is locked. Unlock it in the inspector to rename it.</source>
        <translation>„%1“ ist gesperrt. Zum Umbenennen entsperren Sie es im Inspektor.</translation>
    </message>
    <message>
        <source>“%1” is locked. Unlock it in the inspector to set its status.</source>
        <translation>„%1“ ist gesperrt. Um den Status zu setzen, entsperren Sie es im Inspektor.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::DocumentPage</name>
    <message>
        <source>This document is locked. Unlock it in the inspector to write.</source>
        <translation>Dieses Dokument ist gesperrt. Um darin zu schreiben, entsperren Sie es im Inspektor.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln words</source>
        <translation>
            <numerusform>%1 von %Ln Wort</numerusform>
            <numerusform>%1 von %Ln Wörtern</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln words</source>
        <translation>
            <numerusform>%Ln Wort</numerusform>
            <numerusform>%Ln Wörter</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing in the text refers to note %1.</source>
        <translation>Nichts im Text verweist auf die Anmerkung %1.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln words selected</source>
        <translation>
            <numerusform>%1 von %Ln Wort markiert</numerusform>
            <numerusform>%1 von %Ln Wörtern markiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Note %1 has no text anywhere in this document.</source>
        <translation>Die Anmerkung %1 hat nirgends in diesem Dokument einen Text.</translation>
    </message>
    <message>
        <source>%1 · %2 · %3</source>
        <translation>%1 · %2 · %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pages</source>
        <translation>
            <numerusform>%Ln Seite</numerusform>
            <numerusform>%Ln Seiten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::FindBar</name>
    <message>
        <source>Find in this text</source>
        <translation>In diesem Text suchen</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß- und Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Ganze Wörter</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Previous place (Shift+F3)</source>
        <translation>Vorige Stelle (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next place (F3)</source>
        <translation>Nächste Stelle (F3)</translation>
    </message>
    <message>
        <source>Close (Escape)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Replace &amp;All</source>
        <translation>&amp;Alle ersetzen</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message numerus="yes">
        <source>More than %Ln places</source>
        <translation>
            <numerusform>Mehr als %Ln Stelle</numerusform>
            <numerusform>Mehr als %Ln Stellen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln places</source>
        <translation>
            <numerusform>%Ln Stelle</numerusform>
            <numerusform>%Ln Stellen</numerusform>
        </translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message numerus="yes">
        <source>Replaced %Ln places.</source>
        <translation>
            <numerusform>%Ln Stelle ersetzt.</numerusform>
            <numerusform>%Ln Stellen ersetzt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was replaced.</source>
        <translation>Nichts wurde ersetzt.</translation>
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
        <source>New document</source>
        <translation>Neues Dokument</translation>
    </message>
    <message>
        <source>No documents here. Press + to write the first one.</source>
        <translation>Hier sind noch keine Dokumente. Mit + beginnen Sie das erste.</translation>
    </message>
    <message>
        <source>Open a project, or begin one.</source>
        <translation>Öffnen oder beginnen Sie ein Projekt.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::NamedStylesDialog</name>
    <message>
        <source>Own &amp;font</source>
        <translation>Eigene &amp;Schrift</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>Paragraphs stand &amp;close together</source>
        <translation>Absätze stehen &amp;dicht beieinander</translation>
    </message>
    <message>
        <source>Paragraph Styles</source>
        <translation>Absatzstile</translation>
    </message>
    <message>
        <source>Paragraph styles</source>
        <translation>Absatzstile</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Neu…</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source> % of the page&apos;s</source>
        <translation> % der Seite</translation>
    </message>
    <message>
        <source>As the page</source>
        <translation>Wie die Seite</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centred</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Justified</source>
        <translation>Blocksatz</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>&amp;Alignment</source>
        <translation>&amp;Ausrichtung</translation>
    </message>
    <message>
        <source>Indent on the &amp;left</source>
        <translation>Einzug &amp;links</translation>
    </message>
    <message>
        <source>Indent on the &amp;right</source>
        <translation>Einzug &amp;rechts</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Set Styles</source>
        <translation>Stile festlegen</translation>
    </message>
    <message>
        <source>Re&amp;store</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Have this style look as it came</source>
        <translation>Diesen Stil aussehen lassen, wie er mitgeliefert wurde</translation>
    </message>
    <message>
        <source>Forget this look; paragraphs keep the name of the style</source>
        <translation>Dieses Aussehen vergessen; Absätze behalten den Namen des Stils</translation>
    </message>
    <message>
        <source>New Paragraph Style</source>
        <translation>Neuer Absatzstil</translation>
    </message>
    <message>
        <source>Name of the style, as in “Telegram”:</source>
        <translation>Name des Stils, etwa „Telegramm“:</translation>
    </message>
    <message>
        <source>The tide came in before the letter did, and both were late.</source>
        <translation>Die Flut kam vor dem Brief, und beide kamen zu spät.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::NotesPane</name>
    <message>
        <source>Notes</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>Notes of the document</source>
        <translation>Anmerkungen des Dokuments</translation>
    </message>
    <message>
        <source>Endnote: go to its place in the text</source>
        <translation>Endnote: zu ihrer Stelle im Text</translation>
    </message>
    <message>
        <source>Footnote: go to its place in the text</source>
        <translation>Fußnote: zu ihrer Stelle im Text</translation>
    </message>
    <message>
        <source>Place of note %1 in the text</source>
        <translation>Stelle der Anmerkung %1 im Text</translation>
    </message>
    <message>
        <source>Text of the endnote</source>
        <translation>Text der Endnote</translation>
    </message>
    <message>
        <source>Text of the footnote</source>
        <translation>Text der Fußnote</translation>
    </message>
    <message>
        <source>Text of note %1</source>
        <translation>Text der Anmerkung %1</translation>
    </message>
    <message>
        <source>Remove the note; its reference in the text stays</source>
        <translation>Anmerkung entfernen; ihr Verweis im Text bleibt</translation>
    </message>
    <message>
        <source>Remove note %1</source>
        <translation>Anmerkung %1 entfernen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::TextActions</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Paragraph &amp;Style</source>
        <translation>Absatz&amp;vorlage</translation>
    </message>
    <message>
        <source>&amp;Alignment</source>
        <translation>&amp;Ausrichtung</translation>
    </message>
    <message>
        <source>&amp;Line Spacing</source>
        <translation>&amp;Zeilenabstand</translation>
    </message>
    <message>
        <source>&amp;Bullet List</source>
        <translation>Aufz&amp;ählung</translation>
    </message>
    <message>
        <source>Bullet list</source>
        <translation>Aufzählung</translation>
    </message>
    <message>
        <source>Numbered list</source>
        <translation>Nummerierte Liste</translation>
    </message>
    <message>
        <source>&amp;Indent</source>
        <translation>&amp;Einrücken</translation>
    </message>
    <message>
        <source>&amp;Outdent</source>
        <translation>Aus&amp;rücken</translation>
    </message>
    <message>
        <source>Page break</source>
        <translation>Seitenumbruch</translation>
    </message>
    <message>
        <source>Bol&amp;d</source>
        <translation>&amp;Fett</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>I&amp;talic</source>
        <translation>&amp;Kursiv</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>&amp;Unterstrichen</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <source>Strikethrough</source>
        <translation>Durchgestrichen</translation>
    </message>
    <message>
        <source>Su&amp;perscript</source>
        <translation>&amp;Hochgestellt</translation>
    </message>
    <message>
        <source>Superscript</source>
        <translation>Hochgestellt</translation>
    </message>
    <message>
        <source>Subs&amp;cript</source>
        <translation>&amp;Tiefgestellt</translation>
    </message>
    <message>
        <source>Subscript</source>
        <translation>Tiefgestellt</translation>
    </message>
    <message>
        <source>Cod&amp;e</source>
        <translation>C&amp;ode</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Fo&amp;nt…</source>
        <translation>S&amp;chrift…</translation>
    </message>
    <message>
        <source>Clear Fo&amp;rmatting</source>
        <translation>Formatierung &amp;löschen</translation>
    </message>
    <message>
        <source>Clear formatting</source>
        <translation>Formatierung löschen</translation>
    </message>
    <message>
        <source>Paragraph style</source>
        <translation>Absatzvorlage</translation>
    </message>
    <message>
        <source>&amp;Body</source>
        <translation>&amp;Fließtext</translation>
    </message>
    <message>
        <source>Heading &amp;%1</source>
        <translation>Überschrift &amp;%1</translation>
    </message>
    <message>
        <source>&amp;Quotation</source>
        <translation>&amp;Zitat</translation>
    </message>
    <message>
        <source>&amp;Code</source>
        <translation>&amp;Code</translation>
    </message>
    <message>
        <source>&amp;Named Style</source>
        <translation>&amp;Benannte Vorlage</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Links</translation>
    </message>
    <message>
        <source>&amp;Centre</source>
        <translation>&amp;Mitte</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Rechts</translation>
    </message>
    <message>
        <source>&amp;Justified</source>
        <translation>&amp;Blocksatz</translation>
    </message>
    <message>
        <source>As the &amp;Page</source>
        <translation>Wie die &amp;Seite</translation>
    </message>
    <message>
        <source>&amp;Single</source>
        <translation>&amp;Einfach</translation>
    </message>
    <message>
        <source>&amp;1.15 Lines</source>
        <translation>&amp;1,15 Zeilen</translation>
    </message>
    <message>
        <source>1.&amp;5 Lines</source>
        <translation>1,&amp;5 Zeilen</translation>
    </message>
    <message>
        <source>&amp;Double</source>
        <translation>&amp;Doppelt</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Zeilenabstand</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>&amp;More…</source>
        <translation>&amp;Weitere…</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>&amp;Highlight</source>
        <translation>Hervorhe&amp;bung</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Hervorhebung</translation>
    </message>
    <message>
        <source>Font of the Selected Text</source>
        <translation>Schrift des markierten Textes</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>&amp;Page Break</source>
        <translation>&amp;Seitenumbruch</translation>
    </message>
    <message>
        <source>&amp;Link…</source>
        <translation>&amp;Link…</translation>
    </message>
    <message>
        <source>&amp;Footnote</source>
        <translation>&amp;Fußnote</translation>
    </message>
    <message>
        <source>&amp;Endnote</source>
        <translation>&amp;Endnote</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>Insert Row &amp;Above</source>
        <translation>Zeile &amp;oberhalb einfügen</translation>
    </message>
    <message>
        <source>Insert row</source>
        <translation>Zeile einfügen</translation>
    </message>
    <message>
        <source>Insert Row &amp;Below</source>
        <translation>Zeile &amp;unterhalb einfügen</translation>
    </message>
    <message>
        <source>Insert Column B&amp;efore</source>
        <translation>Spalte &amp;davor einfügen</translation>
    </message>
    <message>
        <source>Insert column</source>
        <translation>Spalte einfügen</translation>
    </message>
    <message>
        <source>Insert Column A&amp;fter</source>
        <translation>Spalte da&amp;nach einfügen</translation>
    </message>
    <message>
        <source>Remove &amp;Row</source>
        <translation>&amp;Zeile entfernen</translation>
    </message>
    <message>
        <source>Remove row</source>
        <translation>Zeile entfernen</translation>
    </message>
    <message>
        <source>Remove C&amp;olumn</source>
        <translation>&amp;Spalte entfernen</translation>
    </message>
    <message>
        <source>Remove column</source>
        <translation>Spalte entfernen</translation>
    </message>
    <message>
        <source>Remove &amp;Table</source>
        <translation>&amp;Tabelle entfernen</translation>
    </message>
    <message>
        <source>Remove table</source>
        <translation>Tabelle entfernen</translation>
    </message>
    <message>
        <source>Insert an Image</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Address the text leads to (empty removes the link):</source>
        <translation>Adresse, zu der der Text führt (leer entfernt den Link):</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Fließtext</translation>
    </message>
    <message>
        <source>Heading %1</source>
        <translation>Überschrift %1</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Quotation</source>
        <translation>Zitat</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Footnote</source>
        <translation>Fußnote</translation>
    </message>
    <message>
        <source>Nu&amp;mbered List</source>
        <translation>Nu&amp;mmerierte Liste</translation>
    </message>
    <message>
        <source>Pa&amp;ge Break Before</source>
        <translation>Se&amp;itenumbruch davor</translation>
    </message>
    <message>
        <source>Stri&amp;kethrough</source>
        <translation>Durch&amp;gestrichen</translation>
    </message>
    <message>
        <source>Te&amp;xt Colour</source>
        <translation>Te&amp;xtfarbe</translation>
    </message>
    <message>
        <source>I&amp;mage…</source>
        <translation>B&amp;ild…</translation>
    </message>
    <message>
        <source>S&amp;cene Break</source>
        <translation>S&amp;zenentrenner</translation>
    </message>
    <message numerus="yes">
        <source>New Table with &amp;%n Columns</source>
        <translation>
            <numerusform>Neue Tabelle mit &amp;%n Spalte</numerusform>
            <numerusform>Neue Tabelle mit &amp;%n Spalten</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Edit Styles…</source>
        <translation>Stile &amp;bearbeiten…</translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::rich::EntityCard</name>
    <message>
        <source>Also: %1</source>
        <translation>Auch: %1</translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::rich::PageImages</name>
    <message>
        <source>Image not in the project’s assets: %1</source>
        <translation>Bild fehlt unter den Dateien des Projekts: %1</translation>
    </message>
    <message>
        <source>%1 – image not in the project’s assets: %2</source>
        <translation>%1 – Bild fehlt unter den Dateien des Projekts: %2</translation>
    </message>
</context>
<context>
    <name>tw::desktop::manuscript::rich::RichPage</name>
    <message>
        <source>Nest list item</source>
        <translation>Listenpunkt einrücken</translation>
    </message>
    <message>
        <source>Lift list item</source>
        <translation>Listenpunkt ausrücken</translation>
    </message>
    <message>
        <source>Indent paragraph</source>
        <translation>Absatz einrücken</translation>
    </message>
    <message>
        <source>Outdent paragraph</source>
        <translation>Absatz ausrücken</translation>
    </message>
    <message>
        <source>Insert rule</source>
        <translation>Trennlinie einfügen</translation>
    </message>
    <message>
        <source>Page break</source>
        <translation>Seitenumbruch</translation>
    </message>
    <message>
        <source>Insert table</source>
        <translation>Tabelle einfügen</translation>
    </message>
    <message>
        <source>Insert image</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Insert footnote</source>
        <translation>Fußnote einfügen</translation>
    </message>
    <message>
        <source>Remove link</source>
        <translation>Link entfernen</translation>
    </message>
    <message>
        <source>Insert link</source>
        <translation>Link einfügen</translation>
    </message>
    <message>
        <source>Typographic correction</source>
        <translation>Typografische Korrektur</translation>
    </message>
    <message>
        <source>Insert row</source>
        <translation>Zeile einfügen</translation>
    </message>
    <message>
        <source>Insert name</source>
        <translation>Namen einfügen</translation>
    </message>
    <message>
        <source>Names of the codex</source>
        <translation>Namen aus dem Codex</translation>
    </message>
</context>
<context>
    <name>tw::desktop::overview::CardDelegate</name>
    <message>
        <source>No synopsis yet</source>
        <translation>Noch keine Synopse</translation>
    </message>
    <message>
        <source>Edit card</source>
        <translation>Kärtchen bearbeiten</translation>
    </message>
    <message numerus="yes">
        <source>%Ln words</source>
        <translation>
            <numerusform>%Ln Wort</numerusform>
            <numerusform>%Ln Wörter</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::overview::CardEditor</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Synopse</translation>
    </message>
    <message>
        <source>What happens here</source>
        <translation>Was hier geschieht</translation>
    </message>
</context>
<context>
    <name>tw::desktop::overview::CorkboardPage</name>
    <message>
        <source>Corkboard</source>
        <translation>Korktafel</translation>
    </message>
</context>
<context>
    <name>tw::desktop::overview::OutlinePage</name>
    <message>
        <source>Outline</source>
        <translation>Gliederung</translation>
    </message>
</context>
<context>
    <name>tw::desktop::overview::OverviewPage</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Nothing here contains “%1”.</source>
        <translation>Nichts hier enthält „%1“.</translation>
    </message>
    <message>
        <source>No documents in here yet. Press Ctrl+Shift+N to add the first one.</source>
        <translation>Hier sind noch keine Dokumente. Strg+Umschalt+N legt das erste an.</translation>
    </message>
    <message>
        <source>Manuscript</source>
        <translation>Manuskript</translation>
    </message>
    <message>
        <source>Where this is in the manuscript</source>
        <translation>Wo dies im Manuskript steht</translation>
    </message>
    <message numerus="yes">
        <source>%n documents</source>
        <translation>
            <numerusform>%n Dokument</numerusform>
            <numerusform>%n Dokumente</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::problems::ProblemsModel</name>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more. Settle these first, or hide kinds.</source>
        <translation>
            <numerusform>%Ln weiteres. Erledigen Sie erst diese, oder blenden Sie Arten aus.</numerusform>
            <numerusform>%Ln weitere. Erledigen Sie erst diese, oder blenden Sie Arten aus.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::problems::ProblemsPanel</name>
    <message>
        <source>Filter the problems</source>
        <translation>Probleme filtern</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Whole Manuscript</source>
        <translation>Ganzes Manuskript</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Show &amp;Ignored Ones Again</source>
        <translation>Über&amp;gangene wieder zeigen</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>Nothing to complain about.</source>
        <translation>Nichts zu beanstanden.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln problems</source>
        <translation>
            <numerusform>%Ln Problem</numerusform>
            <numerusform>%Ln Probleme</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 more in kinds that are hidden</source>
        <translation>%1, %2 weitere in ausgeblendeten Arten</translation>
    </message>
    <message>
        <source>%1, still reading…</source>
        <translation>%1, wird noch gelesen…</translation>
    </message>
    <message>
        <source>Replace with “%1”</source>
        <translation>Durch „%1“ ersetzen</translation>
    </message>
    <message>
        <source>&amp;Ignore Here</source>
        <translation>Hier ü&amp;bergehen</translation>
    </message>
    <message>
        <source>Problems of all documents, and of the story, instead of what is open</source>
        <translation>Probleme aller Dokumente und der Geschichte statt des Geöffneten</translation>
    </message>
    <message>
        <source>Open a document or an entity to see its problems, or choose the whole manuscript above.</source>
        <translation>Öffnen Sie ein Dokument oder einen Eintrag, um dessen Probleme zu sehen, oder wählen Sie oben das ganze Manuskript.</translation>
    </message>
    <message>
        <source>&amp;Show the Place</source>
        <translation>Die &amp;Stelle zeigen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::project::BackupModel</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Made on</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
</context>
<context>
    <name>tw::desktop::project::ExportPackDialog</name>
    <message>
        <source>Export Content Pack</source>
        <translation>Inhaltspaket exportieren</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Beschreibung</translation>
    </message>
    <message>
        <source>&amp;Author</source>
        <translation>&amp;Autor</translation>
    </message>
    <message>
        <source>&amp;Version</source>
        <translation>&amp;Version</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Categories of the pack</source>
        <translation>Kategorien des Pakets</translation>
    </message>
    <message>
        <source>Give the pack a name.</source>
        <translation>Geben Sie dem Paket einen Namen.</translation>
    </message>
    <message>
        <source>Tick the categories that go into the pack.</source>
        <translation>Kreuzen Sie die Kategorien an, die ins Paket kommen.</translation>
    </message>
    <message numerus="yes">
        <source>%n categories go into the pack, those that they need included.</source>
        <translation>
            <numerusform>%n Kategorie kommt ins Paket.</numerusform>
            <numerusform>%n Kategorien kommen ins Paket, samt denen, die sie brauchen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::project::NewProjectDialog</name>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>&amp;Template</source>
        <translation>&amp;Vorlage</translation>
    </message>
    <message>
        <source>Create Project</source>
        <translation>Projekt anlegen</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
</context>
<context>
    <name>tw::desktop::project::PlaceRows</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen…</translation>
    </message>
    <message>
        <source>&amp;Place</source>
        <translation>&amp;Ort</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Kept as</source>
        <translation>Aufbewahrt als</translation>
    </message>
    <message>
        <source>Place of the Project</source>
        <translation>Ort des Projekts</translation>
    </message>
    <message>
        <source>It will be %1</source>
        <translation>Es entsteht %1</translation>
    </message>
    <message>
        <source>Choose a folder for the project</source>
        <translation>Einen Ordner für das Projekt wählen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::project::ProjectBackups</name>
    <message>
        <source>Back Up Project</source>
        <translation>Projekt sichern</translation>
    </message>
    <message>
        <source>Backed up project to %1</source>
        <translation>Projekt gesichert unter %1</translation>
    </message>
    <message>
        <source>Restored project</source>
        <translation>Wiederhergestelltes Projekt</translation>
    </message>
    <message>
        <source>Restore from a Backup</source>
        <translation>Aus einer Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>Backups Folder</source>
        <translation>Ordner der Sicherungen</translation>
    </message>
    <message>
        <source>The folder could not be shown. It is here:
%1</source>
        <translation>Der Ordner ließ sich nicht anzeigen. Er liegt hier:
%1</translation>
    </message>
</context>
<context>
    <name>tw::desktop::project::ProjectSettingsDialog</name>
    <message>
        <source>Audiences</source>
        <translation>Zielgruppen</translation>
    </message>
    <message>
        <source>No audiences: everything is for everyone.</source>
        <translation>Keine Zielgruppen: Alles ist für alle.</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliotheken</translation>
    </message>
    <message>
        <source>No libraries: add another project to refer to what it holds.</source>
        <translation>Keine Bibliotheken: Fügen Sie ein anderes Projekt hinzu, um auf dessen Inhalt zu verweisen.</translation>
    </message>
    <message>
        <source>Project Settings</source>
        <translation>Projekteinstellungen</translation>
    </message>
    <message>
        <source>What is new is visible to the ticked ones; with none ticked, to everyone.</source>
        <translation>Neues ist für die angekreuzten sichtbar; ist keine angekreuzt, für alle.</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Apply Settings</source>
        <translation>Einstellungen anwenden</translation>
    </message>
    <message>
        <source>&amp;Add Audience</source>
        <translation>Zielgruppe &amp;hinzufügen</translation>
    </message>
    <message>
        <source>New audience</source>
        <translation>Neue Zielgruppe</translation>
    </message>
    <message numerus="yes">
        <source>“%1” is an audience of %n things.</source>
        <translation>
            <numerusform>„%1“ ist Zielgruppe von %n Objekt.</numerusform>
            <numerusform>„%1“ ist Zielgruppe von %n Objekten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove Audience</source>
        <translation>Zielgruppe entfernen</translation>
    </message>
    <message>
        <source>Add &amp;File…</source>
        <translation>&amp;Datei hinzufügen…</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>&amp;Ordner hinzufügen…</translation>
    </message>
    <message>
        <source>A project is no library of itself. Choose another one.</source>
        <translation>Ein Projekt ist keine Bibliothek seiner selbst. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>Other projects whose entities can be referred to from this one. They are only read.</source>
        <translation>Andere Projekte, auf deren Einträge dieses verweisen kann. Sie werden nur gelesen.</translation>
    </message>
    <message numerus="yes">
        <source>%n of them name no other audience, so everyone would see them.</source>
        <translation>
            <numerusform>%n davon nennt keine andere Zielgruppe, sodass alle es sähen.</numerusform>
            <numerusform>%n davon nennen keine andere Zielgruppe, sodass alle sie sähen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is already in the list.</source>
        <translation>%1 steht schon in der Liste.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::project::RestoreDialog</name>
    <message>
        <source>There are no backups yet. “Back Up Project” makes one.</source>
        <translation>Es gibt noch keine Sicherungen. „Projekt sichern“ legt eine an.</translation>
    </message>
    <message>
        <source>Show the backups of &amp;all projects</source>
        <translation>Sicherungen &amp;aller Projekte zeigen</translation>
    </message>
    <message>
        <source>Restore from a Backup</source>
        <translation>Aus einer Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>A backup becomes a new project. The project it was made of stays as it is.</source>
        <translation>Aus einer Sicherung wird ein neues Projekt. Das Projekt, von dem sie stammt, bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>Choose a &amp;File…</source>
        <translation>&amp;Datei wählen…</translation>
    </message>
    <message>
        <source>Restore as New Project</source>
        <translation>Als neues Projekt wiederherstellen</translation>
    </message>
    <message>
        <source>No backup is chosen.</source>
        <translation>Keine Sicherung gewählt.</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Aus %1</translation>
    </message>
</context>
<context>
    <name>tw::desktop::proofreading::EditorProofreader</name>
    <message>
        <source>Take suggestion “%1”</source>
        <translation>Vorschlag „%1“ übernehmen</translation>
    </message>
    <message>
        <source>&amp;Ignore Here</source>
        <translation>Hier ü&amp;bergehen</translation>
    </message>
    <message>
        <source>&amp;Add to Dictionary</source>
        <translation>Zum &amp;Wörterbuch hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Turn Off This Rule</source>
        <translation>Diese &amp;Regel ausschalten</translation>
    </message>
</context>
<context>
    <name>tw::desktop::proofreading::ProofreadingService</name>
    <message>
        <source>There is nothing to suggest for the text at the cursor.</source>
        <translation>Für den Text am Cursor gibt es keinen Vorschlag.</translation>
    </message>
    <message>
        <source>The dictionary “%1” is not installed. Install it, or choose another language.</source>
        <translation>Das Wörterbuch „%1“ ist nicht installiert. Installieren Sie es, oder wählen Sie eine andere Sprache.</translation>
    </message>
    <message>
        <source>The rule “%1” is off. Settings, Proofreading turns it on again.</source>
        <translation>Die Regel „%1“ ist aus. Unter Einstellungen, Korrektur lässt sie sich wieder einschalten.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::proofreading::ProseProblems</name>
    <message>
        <source>“%1” is no longer in the text.</source>
        <translation>„%1“ steht nicht mehr im Text.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::review::ConflictModel</name>
    <message>
        <source>Keep my version</source>
        <translation>Meine Fassung behalten</translation>
    </message>
    <message>
        <source>Keep my version (delete the file)</source>
        <translation>Meine Fassung behalten (Datei löschen)</translation>
    </message>
    <message>
        <source>Take on-disk version</source>
        <translation>Fassung auf der Festplatte nehmen</translation>
    </message>
    <message>
        <source>Take on-disk version (delete the file)</source>
        <translation>Fassung auf der Festplatte nehmen (Datei löschen)</translation>
    </message>
    <message>
        <source>Merge both by paragraphs</source>
        <translation>Beide absatzweise zusammenführen</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>Noch nicht gewählt</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Entscheidung</translation>
    </message>
    <message>
        <source>Keep both, marked in the text</source>
        <translation>Beide behalten, im Text markiert</translation>
    </message>
</context>
<context>
    <name>tw::desktop::review::ExternalChanges</name>
    <message>
        <source>External Changes</source>
        <translation>Änderungen von außen</translation>
    </message>
    <message>
        <source>No external changes — the project on disk matches what you have open.</source>
        <translation>Keine Änderungen von außen – das Projekt auf der Festplatte entspricht dem geöffneten.</translation>
    </message>
    <message numerus="yes">
        <source>%n project file(s) changed outside Vellory since you opened it, and you have no unsaved edits here. Load the on-disk version now?</source>
        <translation>
            <numerusform>%n Datei des Projekts wurde außerhalb von Vellory geändert, seit Sie es geöffnet haben, und hier ist nichts ungespeichert. Fassung auf der Festplatte jetzt laden?</numerusform>
            <numerusform>%n Dateien des Projekts wurden außerhalb von Vellory geändert, seit Sie es geöffnet haben, und hier ist nichts ungespeichert. Fassung auf der Festplatte jetzt laden?</numerusform>
        </translation>
    </message>
    <message>
        <source>Load On-Disk Version</source>
        <translation>Fassung auf der Festplatte laden</translation>
    </message>
    <message>
        <source>Loaded the on-disk version of the project.</source>
        <translation>Die Fassung des Projekts auf der Festplatte wurde geladen.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) changed outside Vellory and can be merged with your unsaved edits here. Merge and reload now? Your current project is backed up first.</source>
        <translation>
            <numerusform>%n Datei wurde außerhalb von Vellory geändert und lässt sich mit Ihren ungespeicherten Änderungen zusammenführen. Jetzt zusammenführen und neu laden? Ihr jetziges Projekt wird zuvor gesichert.</numerusform>
            <numerusform>%n Dateien wurden außerhalb von Vellory geändert und lassen sich mit Ihren ungespeicherten Änderungen zusammenführen. Jetzt zusammenführen und neu laden? Ihr jetziges Projekt wird zuvor gesichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Merge and Reload</source>
        <translation>Zusammenführen und neu laden</translation>
    </message>
    <message>
        <source>Merged external changes into the project.</source>
        <translation>Die Änderungen von außen wurden ins Projekt übernommen.</translation>
    </message>
    <message>
        <source>Resolved external changes and reloaded the project.</source>
        <translation>Über die Änderungen von außen ist entschieden; das Projekt wurde neu geladen.</translation>
    </message>
    <message>
        <source>The project changed outside Vellory since you opened it.</source>
        <translation>Das Projekt wurde außerhalb von Vellory geändert, seit Sie es geöffnet haben.</translation>
    </message>
    <message numerus="yes">
        <source>%n of them conflict with unsaved edits here and can&apos;t be merged automatically. Take the on-disk version (discarding your unsaved edits), or keep yours (your next save overwrites the on-disk changes)?</source>
        <translation>
            <numerusform>%n Datei widerspricht ungespeicherten Änderungen hier und lässt sich nicht von selbst zusammenführen. Möchten Sie die Fassung auf der Festplatte nehmen (Ihre ungespeicherten Änderungen werden verworfen) oder Ihre behalten (das nächste Speichern überschreibt die Änderungen auf der Festplatte)?</numerusform>
            <numerusform>%n Dateien widersprechen ungespeicherten Änderungen hier und lassen sich nicht von selbst zusammenführen. Möchten Sie die Fassung auf der Festplatte nehmen (Ihre ungespeicherten Änderungen werden verworfen) oder Ihre behalten (das nächste Speichern überschreibt die Änderungen auf der Festplatte)?</numerusform>
        </translation>
    </message>
    <message>
        <source>Take On-Disk Version</source>
        <translation>Fassung auf der Festplatte nehmen</translation>
    </message>
    <message>
        <source>Keep My Version</source>
        <translation>Meine Fassung behalten</translation>
    </message>
    <message>
        <source>Keeping your version — your next save will overwrite the on-disk changes.</source>
        <translation>Ihre Fassung bleibt – das nächste Speichern überschreibt die Änderungen auf der Festplatte.</translation>
    </message>
    <message numerus="yes">
        <source>%n media file(s) in the project changed on disk (added, replaced, or removed by a co-author or sync client). Save or reopen the project to use the updated assets.</source>
        <translation>
            <numerusform>%n Mediendatei des Projekts hat sich auf der Festplatte geändert (hinzugefügt, ersetzt oder entfernt durch Mitautoren oder ein Synchronisierungsprogramm). Speichern Sie das Projekt, oder öffnen Sie es neu, um den jetzigen Stand zu verwenden.</numerusform>
            <numerusform>%n Mediendateien des Projekts haben sich auf der Festplatte geändert (hinzugefügt, ersetzt oder entfernt durch Mitautoren oder ein Synchronisierungsprogramm). Speichern Sie das Projekt, oder öffnen Sie es neu, um den jetzigen Stand zu verwenden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n media file(s) in the project changed on disk (added, replaced, or removed by a co-author or sync client). Reload the project to use them?</source>
        <translation>
            <numerusform>%n Mediendatei des Projekts hat sich auf der Festplatte geändert (hinzugefügt, ersetzt oder entfernt durch Mitautoren oder ein Synchronisierungsprogramm). Projekt neu laden, um den jetzigen Stand zu verwenden?</numerusform>
            <numerusform>%n Mediendateien des Projekts haben sich auf der Festplatte geändert (hinzugefügt, ersetzt oder entfernt durch Mitautoren oder ein Synchronisierungsprogramm). Projekt neu laden, um den jetzigen Stand zu verwenden?</numerusform>
        </translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Reloaded the project with the updated media files.</source>
        <translation>Das Projekt wurde mit den geänderten Mediendateien neu geladen.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::review::ResolveDialog</name>
    <message>
        <source>− </source>
        <translation>− </translation>
    </message>
    <message>
        <source>+ </source>
        <translation>+ </translation>
    </message>
    <message>
        <source>⋯</source>
        <translation>⋯</translation>
    </message>
    <message>
        <source>Resolve External Changes</source>
        <translation>Über Änderungen von außen entscheiden</translation>
    </message>
    <message>
        <source>Differences for the selected file — your version in red (−), the on-disk version in green (+):</source>
        <translation>Unterschiede in der gewählten Datei – Ihre Fassung in Rot (−), die auf der Festplatte in Grün (+):</translation>
    </message>
    <message>
        <source>Differences for the selected file</source>
        <translation>Unterschiede in der gewählten Datei</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) changed both on disk and in this window over the same lines and can&apos;t be merged automatically. Choose which version to keep for each.</source>
        <translation>
            <numerusform>%n Datei wurde auf der Festplatte und in diesem Fenster in denselben Zeilen geändert und lässt sich nicht von selbst zusammenführen. Wählen Sie, welche Fassung bleiben soll.</numerusform>
            <numerusform>%n Dateien wurden auf der Festplatte und in diesem Fenster in denselben Zeilen geändert und lassen sich nicht von selbst zusammenführen. Wählen Sie für jede, welche Fassung bleiben soll.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n other external change(s) will be merged in automatically.</source>
        <translation>
            <numerusform>%n weitere Änderung von außen wird von selbst übernommen.</numerusform>
            <numerusform>%n weitere Änderungen von außen werden von selbst übernommen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Files to choose for</source>
        <translation>Dateien, über die zu entscheiden ist</translation>
    </message>
    <message>
        <source>Keep All Mine</source>
        <translation>Alle meine behalten</translation>
    </message>
    <message>
        <source>Take All from Disk</source>
        <translation>Alle von der Festplatte nehmen</translation>
    </message>
    <message>
        <source>Apply and Reload</source>
        <translation>Anwenden und neu laden</translation>
    </message>
    <message>
        <source>Choose a version for every file first.</source>
        <translation>Wählen Sie zuerst für jede Datei eine Fassung.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::review::ReviewNotice</name>
    <message>
        <source>Review…</source>
        <translation>Durchsehen…</translation>
    </message>
    <message numerus="yes">
        <source>%n project file(s) changed outside Vellory since you opened it.</source>
        <translation>
            <numerusform>%n Datei des Projekts wurde außerhalb von Vellory geändert, seit Sie es geöffnet haben.</numerusform>
            <numerusform>%n Dateien des Projekts wurden außerhalb von Vellory geändert, seit Sie es geöffnet haben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reopen the project to load the on-disk version, or save to keep yours. (This is a read-only heads-up so a sync client or co-author&apos;s changes don&apos;t surprise you.)</source>
        <translation>Öffnen Sie das Projekt neu, um die Fassung auf der Festplatte zu laden, oder speichern Sie, um Ihre zu behalten. (Dieser Hinweis ändert nichts. Er soll verhindern, dass Änderungen eines Synchronisierungsprogramms oder von Mitautoren Sie überraschen.)</translation>
    </message>
    <message numerus="yes">
        <source>%n media file(s) in the project changed on disk.</source>
        <translation>
            <numerusform>%n Mediendatei des Projekts hat sich auf der Festplatte geändert.</numerusform>
            <numerusform>%n Mediendateien des Projekts haben sich auf der Festplatte geändert.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::screenplay::ScreenplayActions</name>
    <message>
        <source>&amp;Mark Revision</source>
        <translation>&amp;Überarbeitung markieren</translation>
    </message>
    <message>
        <source>&amp;Clear Revision Marks</source>
        <translation>Markierungen ent&amp;fernen</translation>
    </message>
    <message>
        <source>A line is only spoken below a character&apos;s name.</source>
        <translation>Gesprochen wird nur unter dem Namen einer Figur.</translation>
    </message>
    <message>
        <source>From here on, changed lines carry an asterisk in the margin.</source>
        <translation>Ab jetzt tragen geänderte Zeilen einen Stern am Rand.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::screenplay::ScreenplayPage</name>
    <message>
        <source>Text of the screenplay</source>
        <translation>Text des Drehbuchs</translation>
    </message>
    <message>
        <source>Characters who speak</source>
        <translation>Figuren, die sprechen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::search::SearchModel</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Synopse</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n matches</source>
        <translation>
            <numerusform>%1, %n Fundstelle</numerusform>
            <numerusform>%1, %n Fundstellen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::search::SearchPanel</name>
    <message>
        <source>Search the project</source>
        <translation>Im Projekt suchen</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß- und Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Ganze Wörter</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Titles and synopses</source>
        <translation>Titel und Synopsen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Search results</source>
        <translation>Fundstellen</translation>
    </message>
    <message numerus="yes">
        <source>%n matches replaced.</source>
        <translation>
            <numerusform>%n Fundstelle ersetzt.</numerusform>
            <numerusform>%n Fundstellen ersetzt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n locked documents were left alone.</source>
        <translation>
            <numerusform>%n gesperrtes Dokument wurde nicht angerührt.</numerusform>
            <numerusform>%n gesperrte Dokumente wurden nicht angerührt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n documents changed since the search and were left alone; look at them again.</source>
        <translation>
            <numerusform>%n Dokument hat sich seit der Suche geändert und wurde nicht angerührt; sehen Sie es noch einmal an.</numerusform>
            <numerusform>%n Dokumente haben sich seit der Suche geändert und wurden nicht angerührt; sehen Sie sie noch einmal an.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n Fundstelle</numerusform>
            <numerusform>%n Fundstellen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n documents</source>
        <comment>after a number of matches</comment>
        <translation>
            <numerusform>in %n Dokument</numerusform>
            <numerusform>in %n Dokumenten</numerusform>
        </translation>
    </message>
    <message>
        <source>Searching… %1</source>
        <translation>Suche läuft … %1</translation>
    </message>
    <message>
        <source>The first %1; there may be more.</source>
        <translation>Die ersten %1; es kann mehr geben.</translation>
    </message>
    <message>
        <source>The text has changed since; press Return to search again.</source>
        <translation>Der Text hat sich seither geändert; die Eingabetaste sucht neu.</translation>
    </message>
    <message>
        <source>Nothing found. Look for fewer letters, or switch off what narrows the search.</source>
        <translation>Nichts gefunden. Suchen Sie nach weniger Buchstaben, oder schalten Sie aus, was die Suche einschränkt.</translation>
    </message>
    <message>
        <source>Type what you are looking for: all documents are searched, with their titles and synopses. The arrow beside the field shows how to replace.</source>
        <translation>Geben Sie ein, wonach Sie suchen: alle Dokumente werden durchsucht, mit Titeln und Synopsen. Der Pfeil neben dem Feld zeigt, wie ersetzt wird.</translation>
    </message>
    <message>
        <source>&amp;Replace %1</source>
        <translation>%1 &amp;ersetzen</translation>
    </message>
    <message>
        <source>Nothing was replaced.</source>
        <translation>Nichts wurde ersetzt.</translation>
    </message>
    <message numerus="yes">
        <source>%n matches stand across marks and were left alone; change them in the text.</source>
        <translation>
            <numerusform>%n Fundstelle liegt quer zu Auszeichnungen und blieb, wie sie war; ändern Sie sie im Text.</numerusform>
            <numerusform>%n Fundstellen liegen quer zu Auszeichnungen und blieben, wie sie waren; ändern Sie sie im Text.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tw::desktop::settings::AppearancePage</name>
    <message>
        <source>The system&apos;s language</source>
        <translation>Sprache des Systems</translation>
    </message>
    <message>
        <source>Follow the system</source>
        <translation>Dem System folgen</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Farbschema</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Vellory uses it from the next start on.</source>
        <translation>Vellory verwendet sie ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Text &amp;size</source>
        <translation>Te&amp;xtgröße</translation>
    </message>
    <message>
        <source>&amp;Reduce motion: the text cursor does not blink</source>
        <translation>&amp;Bewegung verringern: Die Schreibmarke blinkt nicht</translation>
    </message>
</context>
<context>
    <name>tw::desktop::settings::AssistantPage</name>
    <message>
        <source>The assistant may only &amp;read</source>
        <translation>Der Assistent darf nur &amp;lesen</translation>
    </message>
    <message>
        <source>JSON with “mcpServers” – most assistants</source>
        <translation>JSON mit „mcpServers“ – die meisten Assistenten</translation>
    </message>
    <message>
        <source>JSON with “servers” – editors for code</source>
        <translation>JSON mit „servers“ – Editoren für Quelltext</translation>
    </message>
    <message>
        <source>TOML – assistants in a terminal</source>
        <translation>TOML – Assistenten im Terminal</translation>
    </message>
    <message>
        <source>The command by itself</source>
        <translation>Nur der Befehl</translation>
    </message>
    <message>
        <source>Text for the settings of the assistant</source>
        <translation>Text für die Einstellungen des Assistenten</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Form</source>
        <translation>&amp;Form</translation>
    </message>
    <message>
        <source>An assistant of your choice can read this project and work in it through the program vellory-mcp, as long as it speaks the Model Context Protocol. Put this text into its settings and start it anew. Every change is saved at once; what is excluded from AI stays hidden.</source>
        <translation>Ein Assistent Ihrer Wahl kann dieses Projekt über das Programm vellory-mcp lesen und darin arbeiten, sofern er das Model Context Protocol spricht. Fügen Sie diesen Text in seine Einstellungen ein und starten Sie ihn neu. Jede Änderung wird sofort gespeichert; was von KI ausgeschlossen ist, bleibt verborgen.</translation>
    </message>
    <message>
        <source>Copied. Paste it into the settings of the assistant.</source>
        <translation>Kopiert. Fügen Sie es in die Einstellungen des Assistenten ein.</translation>
    </message>
    <message>
        <source>PATH OF YOUR PROJECT</source>
        <translation>PFAD IHRES PROJEKTS</translation>
    </message>
    <message>
        <source>Open a saved project, and its path stands here by itself.</source>
        <translation>Öffnen Sie ein gespeichertes Projekt, dann steht sein Pfad von selbst hier.</translation>
    </message>
    <message>
        <source>vellory-mcp is not installed beside Vellory: it must be found by its name.</source>
        <translation>vellory-mcp liegt nicht neben Vellory: Es muss über seinen Namen gefunden werden.</translation>
    </message>
    <message>
        <source>Another project needs an entry of its own.</source>
        <translation>Ein anderes Projekt braucht einen eigenen Eintrag.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::settings::EditorPage</name>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source> characters</source>
        <translation> Zeichen</translation>
    </message>
    <message>
        <source> lines</source>
        <translation> Zeilen</translation>
    </message>
    <message>
        <source>Page &amp;font</source>
        <translation>Seiten&amp;schrift</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>Schrift&amp;größe</translation>
    </message>
    <message>
        <source>Page &amp;width</source>
        <translation>Seiten&amp;breite</translation>
    </message>
    <message>
        <source>&amp;Line height</source>
        <translation>&amp;Zeilenhöhe</translation>
    </message>
    <message>
        <source>&amp;Restore Defaults</source>
        <translation>Z&amp;urücksetzen</translation>
    </message>
    <message>
        <source>Begin paragraphs with an &amp;indented line</source>
        <translation>Absätze mit ein&amp;gerückter Zeile beginnen</translation>
    </message>
    <message>
        <source>Make &amp;dashes of two or three hyphens</source>
        <translation>Aus zwei oder drei Bindestrichen &amp;Gedankenstriche machen</translation>
    </message>
    <message>
        <source>Make an &amp;ellipsis of three dots</source>
        <translation>Aus drei Punkten &amp;Auslassungspunkte machen</translation>
    </message>
    <message>
        <source>&amp;Underline names of the codex</source>
        <translation>Namen aus dem Kodex &amp;unterstreichen</translation>
    </message>
    <message>
        <source>As in the language of the program</source>
        <translation>Wie in der Sprache des Programms</translation>
    </message>
    <message>
        <source>Leave quotes as typed</source>
        <translation>Anführungszeichen lassen, wie sie getippt sind</translation>
    </message>
    <message>
        <source>Typographic quotes</source>
        <translation>Typografische Anführungszeichen</translation>
    </message>
    <message>
        <source>&amp;Quotes</source>
        <translation>An&amp;führungszeichen</translation>
    </message>
    <message>
        <source>Show word &amp;counts in the status bar</source>
        <translation>Wort&amp;zahlen in der Statusleiste zeigen</translation>
    </message>
    <message>
        <source>Correct while &amp;typing</source>
        <translation>Beim &amp;Tippen korrigieren</translation>
    </message>
</context>
<context>
    <name>tw::desktop::settings::KeysModel</name>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>tw::desktop::settings::KeysPage</name>
    <message>
        <source>Search commands and keys</source>
        <translation>Befehle und Tasten suchen</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Befehle und ihre Tasten</translation>
    </message>
    <message>
        <source>New &amp;keys</source>
        <translation>Neue &amp;Tasten</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>Neue Tasten</translation>
    </message>
    <message>
        <source>Press the keys here</source>
        <translation>Drücken Sie hier die Tasten</translation>
    </message>
    <message>
        <source>&amp;Assign</source>
        <translation>&amp;Zuweisen</translation>
    </message>
    <message>
        <source>&amp;Remove Keys</source>
        <translation>Tasten entfe&amp;rnen</translation>
    </message>
    <message>
        <source>R&amp;eset This One</source>
        <translation>&amp;Diesen zurücksetzen</translation>
    </message>
    <message>
        <source>Reset A&amp;ll…</source>
        <translation>&amp;Alle zurücksetzen…</translation>
    </message>
    <message>
        <source>Reset All Keys</source>
        <translation>Alle Tasten zurücksetzen</translation>
    </message>
    <message>
        <source>Every command gets back the keys it came with. Your own ones are given up.</source>
        <translation>Jeder Befehl erhält die Tasten zurück, die er zu Beginn hatte. Ihre eigenen gehen verloren.</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Alle zurücksetzen</translation>
    </message>
    <message>
        <source>%1 belongs to “%2” in the menu %3, which would lose it.</source>
        <translation>%1 gehört zu „%2“ im Menü „%3“, das die Tasten damit verlöre.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::settings::ProofreadingPage</name>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Check spelling while typing</source>
        <translation>&amp;Rechtschreibung beim Schreiben prüfen</translation>
    </message>
    <message>
        <source>Leave out words in ca&amp;pitals</source>
        <translation>Wörter in Groß&amp;buchstaben auslassen</translation>
    </message>
    <message>
        <source>Spelling</source>
        <translation>Rechtschreibung</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <source>&amp;Languages</source>
        <translation>&amp;Sprachen</translation>
    </message>
    <message>
        <source>No dictionary is installed. Install one of your language (packages are named hunspell-…) and start Vellory again.</source>
        <translation>Kein Wörterbuch installiert. Installieren Sie eines Ihrer Sprache (die Pakete heißen hunspell-…), und starten Sie Vellory neu.</translation>
    </message>
    <message>
        <source>Your words</source>
        <translation>Ihre Wörter</translation>
    </message>
    <message>
        <source>&amp;Your words</source>
        <translation>&amp;Ihre Wörter</translation>
    </message>
    <message>
        <source>Pr&amp;oofread while typing</source>
        <translation>Beim Schreiben &amp;Stil prüfen</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
</context>
<context>
    <name>tw::desktop::settings::SavingPage</name>
    <message>
        <source>Save &amp;by itself while I write</source>
        <translation>Beim Schreiben von selbst &amp;speichern</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> Sekunden</translation>
    </message>
    <message>
        <source>&amp;Every</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>Keep new projects as &amp;folders</source>
        <translation>Neue Projekte als &amp;Ordner anlegen</translation>
    </message>
    <message>
        <source>Off (recommended): the project is one .vellory file you can copy, back up, and double-click. On: the project is a folder of plain text files, ideal under Git, Perforce, or a sync client.</source>
        <translation>Aus (empfohlen): Das Projekt ist eine einzige .vellory-Datei, die Sie kopieren, sichern und per Doppelklick öffnen können. Ein: Das Projekt ist ein Ordner mit einfachen Textdateien, ideal unter Git, Perforce oder einem Synchronisierungsprogramm.</translation>
    </message>
    <message>
        <source>&amp;Open the last project when Vellory starts</source>
        <translation>Beim Start das &amp;letzte Projekt öffnen</translation>
    </message>
    <message>
        <source>Bac&amp;kups are kept in</source>
        <translation>Ordner der Si&amp;cherungen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::settings::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pages of the settings</source>
        <translation>Seiten der Einstellungen</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Proofreading</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>Connect an assistant</source>
        <translation>Assistenten verbinden</translation>
    </message>
</context>
<context>
    <name>tw::desktop::settings::Shortcuts</name>
    <message>
        <source>%1 › %2</source>
        <translation>%1 › %2</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::AboutDialog</name>
    <message>
        <source>About Vellory</source>
        <translation>Über Vellory</translation>
    </message>
    <message>
        <source>Vellory %1</source>
        <translation>Vellory %1</translation>
    </message>
    <message>
        <source>A writing and worldbuilding workspace for novelists, screenwriters and game masters.</source>
        <translation>Ein Arbeitsplatz zum Schreiben und Weltenbauen für alle, die Romane, Drehbücher und Spielwelten schreiben.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder neuer.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Built with Qt %1, Qt Advanced Docking System, simdjson and Hunspell.</source>
        <translation>Gebaut mit Qt %1, Qt Advanced Docking System, simdjson und Hunspell.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::AudienceSelector</name>
    <message>
        <source>View as:</source>
        <translation>Ansicht für:</translation>
    </message>
    <message>
        <source>Preview the codex and manuscript as a chosen audience sees them</source>
        <translation>Kodex und Manuskript so ansehen, wie eine gewählte Zielgruppe sie sieht</translation>
    </message>
    <message>
        <source>This project has no audiences. Project Settings in the menu Project adds them.</source>
        <translation>Dieses Projekt hat keine Zielgruppen. Hinzufügen lassen sie sich in den Projekteinstellungen im Menü Projekt.</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Nothing here is for the audience that you view it as.</source>
        <translation>Hier ist nichts für die Zielgruppe, als die Sie es ansehen.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::MainWindow</name>
    <message>
        <source>Choose a document in the manuscript or an entity in the codex.</source>
        <translation>Wählen Sie ein Dokument im Manuskript oder einen Eintrag im Kodex.</translation>
    </message>
    <message>
        <source>Autosave failed: %1</source>
        <translation>Automatisches Speichern fehlgeschlagen: %1</translation>
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
        <source>F&amp;ormat</source>
        <translation>F&amp;ormat</translation>
    </message>
    <message>
        <source>Page &amp;Font…</source>
        <translation>Seiten&amp;schrift…</translation>
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
        <source>Undo %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
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
        <source>Open Project &amp;Folder…</source>
        <translation>Projekt&amp;ordner öffnen…</translation>
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
        <source>Reload from &amp;Disk</source>
        <translation>Neu von der Festplatte &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Check for External Changes…</source>
        <translation>Auf Änderungen von außen &amp;prüfen…</translation>
    </message>
    <message>
        <source>Show the &amp;Welcome Page</source>
        <translation>&amp;Willkommensseite zeigen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projekt</translation>
    </message>
    <message>
        <source>Project &amp;Settings…</source>
        <translation>Projekt&amp;einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Back Up Project</source>
        <translation>Projekt &amp;sichern</translation>
    </message>
    <message>
        <source>&amp;Restore from a Backup…</source>
        <translation>Aus einer Sicherung &amp;wiederherstellen…</translation>
    </message>
    <message>
        <source>Show Backups &amp;Folder</source>
        <translation>&amp;Ordner der Sicherungen zeigen</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Codex</source>
        <translation>&amp;Kodex</translation>
    </message>
    <message>
        <source>&amp;Import Content Pack…</source>
        <translation>Inhaltspaket &amp;importieren…</translation>
    </message>
    <message>
        <source>E&amp;xport Content Pack…</source>
        <translation>Inhaltspaket e&amp;xportieren…</translation>
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
        <source>Nothing opened yet</source>
        <translation>Noch nichts geöffnet</translation>
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
    <message>
        <source>&amp;Find…</source>
        <translation>Suc&amp;hen…</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Rückw&amp;ärts suchen</translation>
    </message>
    <message>
        <source>Find in the Pro&amp;ject…</source>
        <translation>Im Pro&amp;jekt suchen…</translation>
    </message>
    <message>
        <source>Te&amp;xt</source>
        <translation>Te&amp;xt</translation>
    </message>
    <message>
        <source>Markdown So&amp;urce</source>
        <translation>Markdown-&amp;Quelltext</translation>
    </message>
    <message>
        <source>Format &amp;Bar</source>
        <translation>Format&amp;leiste</translation>
    </message>
    <message>
        <source>T&amp;ypewriter Scrolling</source>
        <translation>Schreib&amp;maschinenrollen</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Writing &amp;Goals…</source>
        <translation>Schreib&amp;ziele…</translation>
    </message>
    <message>
        <source>Read &amp;Aloud</source>
        <translation>&amp;Vorlesen</translation>
    </message>
    <message>
        <source>Open a document to have it read aloud.</source>
        <translation>Öffnen Sie ein Dokument, um es vorlesen zu lassen.</translation>
    </message>
    <message>
        <source>No voice is installed. Install a speech engine for your system to have texts read aloud.</source>
        <translation>Keine Stimme installiert. Installieren Sie eine Sprachausgabe für Ihr System, um Texte vorlesen zu lassen.</translation>
    </message>
    <message>
        <source>&amp;Proofread While Typing</source>
        <translation>&amp;Stil beim Schreiben prüfen</translation>
    </message>
    <message>
        <source>&amp;Language of the Document</source>
        <translation>S&amp;prache des Dokuments</translation>
    </message>
    <message>
        <source>Su&amp;ggestions at the Cursor</source>
        <translation>Vorschlä&amp;ge am Cursor</translation>
    </message>
    <message>
        <source>P&amp;roblems</source>
        <translation>Pro&amp;bleme</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Versionen</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Paste as P&amp;lain Text</source>
        <translation>Als einfachen &amp;Text einfügen</translation>
    </message>
    <message>
        <source>Find Ne&amp;xt</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>R&amp;eplace…</source>
        <translation>Erset&amp;zen…</translation>
    </message>
    <message>
        <source>Screenpla&amp;y</source>
        <translation>&amp;Drehbuch</translation>
    </message>
    <message>
        <source>Cor&amp;kboard</source>
        <translation>Korkt&amp;afel</translation>
    </message>
    <message>
        <source>Continuous T&amp;ext</source>
        <translation>Durc&amp;hgehender Text</translation>
    </message>
    <message>
        <source>Out&amp;line</source>
        <translation>Gl&amp;iederung</translation>
    </message>
    <message>
        <source>Focus &amp;Mode</source>
        <translation>Fok&amp;usmodus</translation>
    </message>
    <message>
        <source>&amp;Check Spelling While Typing</source>
        <translation>&amp;Rechtschreibung beim Schreiben prüfen</translation>
    </message>
    <message>
        <source>Check C&amp;ontinuity</source>
        <translation>K&amp;ontinuität prüfen</translation>
    </message>
    <message>
        <source>Continuity R&amp;ules…</source>
        <translation>Kontinuitätsrege&amp;ln…</translation>
    </message>
    <message>
        <source>The story has no conflicts.</source>
        <translation>Die Geschichte hat keine Widersprüche.</translation>
    </message>
    <message numerus="yes">
        <source>The story has %Ln conflicts.</source>
        <translation>
            <numerusform>Die Geschichte hat %Ln Widerspruch.</numerusform>
            <numerusform>Die Geschichte hat %Ln Widersprüche.</numerusform>
        </translation>
    </message>
    <message>
        <source>Vie&amp;w As…</source>
        <translation>Ansi&amp;cht für…</translation>
    </message>
    <message>
        <source>Edit &amp;Calendar…</source>
        <translation>&amp;Kalender bearbeiten…</translation>
    </message>
    <message>
        <source>Clean &amp;Up Properties…</source>
        <translation>Eigenschaften &amp;aufräumen…</translation>
    </message>
    <message>
        <source>&amp;Go to…</source>
        <translation>Gehe &amp;zu…</translation>
    </message>
    <message>
        <source>Comman&amp;d Palette…</source>
        <translation>Befehls&amp;palette…</translation>
    </message>
    <message>
        <source>Page &amp;View</source>
        <translation>S&amp;eitenansicht</translation>
    </message>
    <message>
        <source>The system&apos;s speech broke off. Check its voices, then read aloud again.</source>
        <translation>Die Sprachausgabe des Systems ist abgebrochen. Prüfen Sie deren Stimmen, und lassen Sie dann erneut vorlesen.</translation>
    </message>
    <message>
        <source>%1 It says: %2</source>
        <translation>%1 Sie meldet: %2</translation>
    </message>
    <message>
        <source>There is nothing to read in what is selected.</source>
        <translation>In der Auswahl gibt es nichts vorzulesen.</translation>
    </message>
    <message>
        <source>There is nothing to read behind the cursor.</source>
        <translation>Hinter dem Cursor gibt es nichts vorzulesen.</translation>
    </message>
    <message>
        <source>There is no name from the codex at the cursor.</source>
        <translation>Am Cursor steht kein Name aus dem Kodex.</translation>
    </message>
    <message>
        <source>Manage &amp;Audiences…</source>
        <translation>Ziel&amp;gruppen verwalten…</translation>
    </message>
    <message>
        <source>The settings hold only until Vellory is closed. %1</source>
        <translation>Die Einstellungen gelten nur, bis Vellory geschlossen wird. %1</translation>
    </message>
    <message>
        <source>Follow Link, Note or Na&amp;me</source>
        <translation>&amp;Link, Anmerkung oder Namen folgen</translation>
    </message>
    <message>
        <source>There is no link, note or name from the codex at the cursor.</source>
        <translation>Am Cursor steht kein Link, keine Anmerkung und kein Name aus dem Kodex.</translation>
    </message>
    <message>
        <source>S&amp;how Card of the Name</source>
        <translation>Ka&amp;rte des Namens zeigen</translation>
    </message>
    <message>
        <source>Go to Ne&amp;xt Part</source>
        <translation>Zum näc&amp;hsten Bereich</translation>
    </message>
    <message>
        <source>Go to Pre&amp;vious Part</source>
        <translation>Zum &amp;vorigen Bereich</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::NamedLayouts</name>
    <message>
        <source>&amp;Layout</source>
        <translation>&amp;Anordnung</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>Anordnung &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>&amp;Schreiben</translation>
    </message>
    <message>
        <source>&amp;Plan</source>
        <translation>&amp;Planen</translation>
    </message>
    <message>
        <source>W&amp;orld</source>
        <translation>&amp;Welt</translation>
    </message>
    <message>
        <source>P&amp;lay</source>
        <translation>Sp&amp;ielen</translation>
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
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Open the Sample</source>
        <translation>Beispiel öffnen</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved.</source>
        <translation>„%1“ hat Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Discard Changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Your unsaved changes are back. Save to keep them.</source>
        <translation>Ihre ungespeicherten Änderungen sind wieder da. Speichern Sie, um sie zu behalten.</translation>
    </message>
    <message>
        <source>Reload Project</source>
        <translation>Projekt neu laden</translation>
    </message>
    <message>
        <source>“%1” has changes that are not saved. Reloading it from disk discards them.</source>
        <translation>„%1“ hat Änderungen, die nicht gespeichert sind. Wenn es neu von der Festplatte geladen wird, gehen sie verloren.</translation>
    </message>
    <message>
        <source>A save that failed left changes behind, and they could not be set aside: when the project is read again, they are back. Undo them then. %1</source>
        <translation>Ein gescheitertes Speichern hat Änderungen hinterlassen, die sich nicht beiseitelegen ließen: Wenn das Projekt wieder gelesen wird, sind sie noch da. Machen Sie sie dann rückgängig. %1</translation>
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
    <message numerus="yes">
        <source>Manuscript: %Ln words</source>
        <translation>
            <numerusform>Manuskript: %Ln Wort</numerusform>
            <numerusform>Manuskript: %Ln Wörter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln words of the daily target</source>
        <translation>
            <numerusform>%1 von %Ln Wort des Tagesziels</numerusform>
            <numerusform>%1 von %Ln Wörtern des Tagesziels</numerusform>
        </translation>
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
        <translation>Ein ruhiger Schreibtisch für lange Geschichten und die Welten, in denen sie spielen.</translation>
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
    <message>
        <source>File %1</source>
        <translation>Datei %1</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Ordner %1</translation>
    </message>
    <message>
        <source>A novel, a screenplay, a campaign, or an empty desk.</source>
        <translation>Ein Roman, ein Drehbuch, eine Kampagne oder ein leerer Schreibtisch.</translation>
    </message>
    <message>
        <source>A .vellory file, or a backup of one.</source>
        <translation>Eine .vellory-Datei oder die Sicherung eines Projekts.</translation>
    </message>
    <message>
        <source>Open a project folder</source>
        <translation>Einen Projektordner öffnen</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>Remove “%1” from this list</source>
        <translation>„%1“ aus dieser Liste entfernen</translation>
    </message>
</context>
<context>
    <name>tw::desktop::shell::WorkArea</name>
    <message>
        <source>Open pages</source>
        <translation>Offene Seiten</translation>
    </message>
    <message>
        <source>%1 (unsaved)</source>
        <translation>%1 (nicht gespeichert)</translation>
    </message>
</context>
<context>
    <name>tw::desktop::snapshots::DifferenceView</name>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>The texts are the same.</source>
        <translation>Die Texte sind gleich.</translation>
    </message>
    <message>
        <source>Restore this passage</source>
        <translation>Diese Stelle wiederherstellen</translation>
    </message>
    <message>
        <source>Take a snapshot to keep the text as it is now. What changes afterwards is shown here.</source>
        <translation>Halten Sie eine Version fest, um den Text zu behalten, wie er jetzt ist. Was sich danach ändert, ist hier zu sehen.</translation>
    </message>
</context>
<context>
    <name>tw::desktop::snapshots::SnapshotModel</name>
    <message>
        <source>Present text</source>
        <translation>Gegenwärtiger Text</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Version</translation>
    </message>
</context>
<context>
    <name>tw::desktop::snapshots::SnapshotsPanel</name>
    <message>
        <source>Select a document to see its snapshots and variants.</source>
        <translation>Wählen Sie ein Dokument, um seine Versionen und Varianten zu sehen.</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Versionen</translation>
    </message>
    <message>
        <source>The passage is as it was. The text before that is a snapshot.</source>
        <translation>Die Stelle ist wieder wie zuvor. Der Text davor ist eine Version.</translation>
    </message>
    <message>
        <source>The text has changed meanwhile; compare again.</source>
        <translation>Der Text hat sich inzwischen geändert; vergleichen Sie neu.</translation>
    </message>
    <message>
        <source>Re&amp;store Snapshot</source>
        <translation>Version &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>Re&amp;name Snapshot</source>
        <translation>Version &amp;umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete Snapshot</source>
        <translation>Version &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Rename Variant…</source>
        <translation>Variante um&amp;benennen…</translation>
    </message>
    <message>
        <source>&amp;Delete Variant</source>
        <translation>Variante lösc&amp;hen</translation>
    </message>
    <message>
        <source>Variant in use</source>
        <translation>Benutzte Variante</translation>
    </message>
    <message>
        <source>The variant of the text that the editor shows</source>
        <translation>Die Variante des Textes, die der Editor zeigt</translation>
    </message>
    <message>
        <source>&amp;New Variant from the Present Text…</source>
        <translation>&amp;Neue Variante aus dem gegenwärtigen Text…</translation>
    </message>
    <message>
        <source>More for this variant</source>
        <translation>Mehr zu dieser Variante</translation>
    </message>
    <message>
        <source>Name of a new snapshot</source>
        <translation>Name einer neuen Version</translation>
    </message>
    <message>
        <source>Compare with</source>
        <translation>Vergleichen mit</translation>
    </message>
    <message>
        <source>Compare &amp;with</source>
        <translation>Vergleichen &amp;mit</translation>
    </message>
    <message>
        <source>The snapshot is the text again. The text before that is a snapshot.</source>
        <translation>Die Version ist wieder der Text. Der Text davor ist eine Version.</translation>
    </message>
    <message>
        <source>New Variant</source>
        <translation>Neue Variante</translation>
    </message>
    <message>
        <source>Rename Variant</source>
        <translation>Variante umbenennen</translation>
    </message>
    <message>
        <source>Name of the variant:</source>
        <translation>Name der Variante:</translation>
    </message>
    <message>
        <source>Variants</source>
        <translation>Varianten</translation>
    </message>
    <message>
        <source>Main text</source>
        <translation>Haupttext</translation>
    </message>
    <message>
        <source>Variant: %1</source>
        <translation>Variante: %1</translation>
    </message>
    <message>
        <source>Ta&amp;ke Snapshot</source>
        <translation>&amp;Version festhalten</translation>
    </message>
</context>
<context>
    <name>tw::desktop::trees::NavigatorTree</name>
    <message>
        <source>Nothing here contains “%1”. Clear the filter to see everything.</source>
        <translation>Nichts hier enthält „%1“. Leeren Sie den Filter, um alles zu sehen.</translation>
    </message>
</context>
</TS>
