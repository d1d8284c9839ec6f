<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>Korvex ISO Editor is vrije software onder de MIT-licentie. Gebruik het alleen voor images die u mag kopiëren.</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 De ontwikkelaars van Korvex ISO Editor</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>Bladeren</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Bladeren</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Branden</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialoogvenster</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>ISO-image:</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>Opstartbare dvd/cd maken</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>Kies een schijf en klik op &apos;Branden&apos;</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>Opstartbare USB-stick maken</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>Kies een USB-stick en klik op &apos;Branden&apos;</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>Partitiestijl</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR (voor oudere BIOS/CSM)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT (vereist voor UEFI)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>Bestandssysteem</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>Volumelabel (max. 11 tekens)</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>Branden mislukt! Doe het volgende:
1.Probeer opnieuw te branden.
2.Gebruik een andere USB-stick of dvd.</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>Schijf branden...</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>De schijf is gebrand.</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>Sluit uw USB-stick aan op de computer</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>Uw USB-stick wordt geformatteerd en alle gegevens erop worden gewist! Wilt u doorgaan?</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>Onvoldoende schijfruimte. Gebruik een USB-stick of cd/dvd met meer capaciteit.</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>Branden is gelukt...</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>USB-stick formatteren...</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>USB-stick opstartbaar maken...</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>USB-stick branden...</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>WIM-bestand groter dan 4 GB verwerken...</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>Voer de naam in:</translation>
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
        <translation>Terug</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Uitpakken</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>ISO uitpakken</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>Pak de volledige inhoud van een ISO-image direct uit naar uw computer.</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>&amp;Uitpakken</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>Selecteer de bestanden of mappen die u wilt uitpakken</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>Bestanden uitpakken...</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>Bestanden uitpakken: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>Bestanden kopiëren! Even geduld...</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>De bestanden zijn uitgepakt.</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>Bestanden toevoegen...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Map toevoegen...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>ISO maken</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>&amp;Bestanden toevoegen</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>&amp;Mappen toevoegen</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Pad</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Grootte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialoogvenster</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>Back-up van bestanden en mappen</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>Totale grootte: 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>Maximale grootte: 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>Soort back-up:</translation>
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
        <translation>Voeg eerst bestanden of mappen toe!</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>Bestanden en mappen kopiëren...</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>ISO-bestand maken...</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>Selecteer een soort</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>De ISO-image is gemaakt!</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>Totale grootte: </translation>
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
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporteren</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Naam wijzigen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>&amp;Toevoegen</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>&amp;Exporteren</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>Naam &amp;wijzigen</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>&amp;Nieuw</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>Selecteer eerst een rij in de lijst</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>Deze naam kan niet worden gebruikt</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>Er bestaat al een bestand of map met deze naam</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>Selecteer eerst bestanden of mappen in de lijst.</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>Bestanden en mappen kopiëren...</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>Exporteren is gelukt!</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>ISO-image uitpakken...</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Voeg eerst bestanden of mappen toe!</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>ISO-bestand opslaan...</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>Het ISO-bestand is opgeslagen!</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialoogvenster</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>Image maken van schijf</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Bron</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>Cd/dvd-station:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Doel</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>Uitvoerformaat:</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>ISO-formaat</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Bestand kiezen</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Uitwerpen</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>Kies het ISO-bestand om op te slaan</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>Kies het ISO-bestand om op te slaan.</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>Lezen wordt gestart...</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>De cd/dvd is gekopieerd!</translation>
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
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Map openen</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>File Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Grootte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Engels</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinees</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japans</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Frans</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Duits</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spaans</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>Portugees</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Pools</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiaans</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russisch</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Nederlands</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Zweeds</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Startpagina</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Branden</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>Opstartbare USB-stick of dvd/cd maken van een ISO</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Uitpakken</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>Inhoud uit ISO uitpakken</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Maken</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>
 ISO maken van bestanden 
 of mappen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>
 Add, delete, rename 
 content in ISO file</source>
        <translation>
 Inhoud toevoegen, wissen 
 of hernoemen in een ISO</translation>
    </message>
    <message>
        <source>Copy Disk</source>
        <translation>Schijf kopiëren</translation>
    </message>
    <message>
        <source>
 Make ISO file from 
 CD/DVD disc</source>
        <translation>
 ISO-bestand maken 
 van een cd/dvd</translation>
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
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>&amp;Over ons</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>CTRL+E</source>
        <translation>CTRL+E</translation>
    </message>
    <message>
        <source>Language(&amp;L)</source>
        <translation>&amp;Taal</translation>
    </message>
</context>
<context>
    <name>Util</name>
    <message>
        <source>Open File</source>
        <translation>Bestand openen</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Bestanden openen</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Bestand opslaan</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>Sleep eerst het symbool naar de map Apps!</translation>
    </message>
</context>
</TS>
