<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>Korvex ISO Editor ist freie Software unter der MIT-Lizenz. Verwenden Sie ihn nur für Abbilder, die Sie kopieren dürfen.</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 Die Entwickler von Korvex ISO Editor</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Brennen</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>ISO-Abbild:</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>Bootfähige DVD/CD</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>Disc auswählen, dann auf »Brennen« klicken</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>Bootfähiges USB-Laufwerk</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>USB-Laufwerk auswählen, dann auf »Brennen« klicken</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>Partitionsstil</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR (für klassisches BIOS/CSM)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT (für UEFI erforderlich)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>Datenträgername (max. 11 Zeichen)</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>Brennen fehlgeschlagen! Gehen Sie so vor:
1.Versuchen Sie es erneut.
2.Verwenden Sie ein anderes USB-Laufwerk oder eine andere DVD.</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>Disc wird gebrannt...</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>Die Disc wurde erfolgreich gebrannt.</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>Schließen Sie Ihr USB-Laufwerk an den Computer an</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>Ihr USB-Laufwerk wird formatiert und alle Daten darauf werden gelöscht! Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>Nicht genügend Speicherplatz. Verwenden Sie ein USB-Laufwerk oder eine CD/DVD mit mehr Kapazität.</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>Erfolgreich gebrannt...</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>Das USB-Laufwerk wird formatiert...</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>Das USB-Laufwerk wird bootfähig gemacht...</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>Das USB-Laufwerk wird beschrieben...</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>WIM-Datei über 4 GB wird verarbeitet...</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>Geben Sie den Namen ein:</translation>
    </message>
</context>
<context>
    <name>CPage2</name>
    <message>
        <source>Load ISO</source>
        <translation>ISO laden</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrahieren</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>ISO extrahieren</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>Inhalte direkt aus einem ISO-Abbild extrahieren und auf dem Computer speichern.</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>&amp;Extrahieren</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>Wählen Sie die Dateien oder Ordner aus, die Sie extrahieren möchten</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>Dateien werden extrahiert...</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>Dateien werden extrahiert: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>Dateien werden kopiert! Bitte etwas Geduld...</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>Die Dateien wurden erfolgreich extrahiert.</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>Dateien hinzufügen...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Ordner hinzufügen...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>ISO erstellen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>&amp;Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>&amp;Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>Sicherung von Dateien und Ordnern</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>Gesamtgröße: 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>Maximalgröße: 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>Art der Sicherung:</translation>
    </message>
    <message>
        <source>ISO9660 Jolet</source>
        <translation>ISO9660 Joliet</translation>
    </message>
    <message>
        <source>ISO9660</source>
        <translation>ISO9660</translation>
    </message>
    <message>
        <source>UDF ISO</source>
        <translation>UDF-ISO</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Fügen Sie zuerst Dateien oder Ordner hinzu!</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>Dateien und Ordner werden kopiert...</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>ISO-Datei wird erstellt...</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>Wählen Sie eine Art aus</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>Das ISO-Abbild wurde erfolgreich erstellt!</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>Gesamtgröße: </translation>
    </message>
</context>
<context>
    <name>CPage4</name>
    <message>
        <source>Load ISO</source>
        <translation>ISO laden</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>Wählen Sie zuerst eine Zeile in der Liste aus</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>Dieser Name kann nicht verwendet werden</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>Eine Datei oder ein Ordner mit diesem Namen ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>Wählen Sie zuerst Dateien oder Ordner in der Liste aus.</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>Dateien und Ordner werden kopiert...</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>Erfolgreich exportiert!</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>ISO-Abbild wird extrahiert...</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Fügen Sie zuerst Dateien oder Ordner hinzu!</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>ISO-Datei wird gespeichert...</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>Die ISO-Datei wurde erfolgreich gespeichert!</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>Abbild von Disc erstellen</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>CD/DVD-Laufwerk auswählen:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>Ausgabeformat:</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>ISO-Format</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Speicherort</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei auswählen</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Auswerfen</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>Wählen Sie die zu speichernde ISO-Datei aus</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>Wählen Sie die zu speichernde ISO-Datei aus.</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>Lesen wird gestartet...</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>Die CD/DVD wurde erfolgreich kopiert!</translation>
    </message>
</context>
<context>
    <name>CProgressDialog</name>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
</context>
<context>
    <name>CommDialog</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>File Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinesisch</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>Portugiesisch</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polnisch</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italienisch</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russisch</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Niederländisch</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Schwedisch</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Brennen</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>Bootfähiges USB-Laufwerk oder DVD/CD aus ISO erstellen</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrahieren</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>Inhalte aus ISO extrahieren</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>
 ISO aus Dateien oder 
 Ordnern erstellen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>
 Add, delete, rename 
 content in ISO file</source>
        <translation>
 Inhalte hinzufügen, löschen 
 und umbenennen</translation>
    </message>
    <message>
        <source>Copy Disk</source>
        <translation>Disc kopieren</translation>
    </message>
    <message>
        <source>
 Make ISO file from 
 CD/DVD disc</source>
        <translation>
 ISO-Datei von einer 
 CD/DVD erstellen</translation>
    </message>
    <message>
        <source>https://www.korvex.example/iso-editor/mac</source>
        <translation>https://www.korvex.example/iso-editor/mac</translation>
    </message>
    <message>
        <source>https://www.korvex.example/iso-editor</source>
        <translation>https://www.korvex.example/iso-editor</translation>
    </message>
    <message>
        <source>https://www.korvex.example/iso-editor/help</source>
        <translation>https://www.korvex.example/iso-editor/help</translation>
    </message>
    <message>
        <source>Help(&amp;H)</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>&amp;Über uns</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>CTRL+E</source>
        <translation>CTRL+E</translation>
    </message>
    <message>
        <source>Language(&amp;L)</source>
        <translation>&amp;Sprache</translation>
    </message>
</context>
<context>
    <name>Util</name>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Dateien öffnen</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>Ziehen Sie das Symbol zuerst in den Ordner »Programme«!</translation>
    </message>
</context>
</TS>
