<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>Korvex ISO Editor är fri programvara under MIT-licensen. Använd den bara med avbilder som du har rätt att kopiera.</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 Utvecklarna av Korvex ISO Editor</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>Bläddra</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Bläddra</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Bränn</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialogruta</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>ISO-avbild:</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>Skapa en startbar DVD/CD</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>Välj en skiva och klicka på &quot;Bränn&quot;</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>Skapa en startbar USB-enhet</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>Välj en USB-enhet och klicka på &quot;Bränn&quot;</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>Partitionsstil</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR (för äldre BIOS/CSM)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT (krävs för UEFI)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>Filsystem</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>Volymetikett (högst 11 tecken)</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>Bränningen misslyckades! Gör så här:
1.Försök att bränna igen.
2.Byt till en annan USB-enhet eller DVD.</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>Bränner skivan...</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>Skivan har bränts.</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>Anslut din USB-enhet till datorn</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>USB-enheten kommer att formateras och alla data på den tas bort! Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>Det finns inte tillräckligt med utrymme. Byt till en större USB-enhet eller CD/DVD.</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>Bränningen är klar...</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>Formaterar USB-enheten...</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>Gör USB-enheten startbar...</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>Bränner USB-enheten...</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>Bearbetar WIM-fil större än 4 GB...</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>Ange namnet:</translation>
    </message>
</context>
<context>
    <name>CPage2</name>
    <message>
        <source>Load ISO</source>
        <translation>Öppna ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrahera</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>Extrahera från ISO</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>Extrahera allt innehåll direkt från en ISO-avbild till datorn.</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>&amp;Extrahera</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>Välj de filer eller mappar som du vill extrahera</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>Extraherar filer...</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>Extraherar filer: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>Kopierar filer! Vänta några sekunder...</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>Filerna har extraherats.</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>Lägg till filer...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Lägg till mapp...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>Skapa ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>Lägg till &amp;filer</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>Lägg till &amp;mappar</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Sökväg</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Storlek</translation>
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
        <translation>Dialogruta</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>Säkerhetskopiering av filer och mappar</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>Total storlek: 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>Maximal storlek: 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>Typ av säkerhetskopia:</translation>
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
        <translation>Lägg till filer eller mappar först!</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>Kopierar filer och mappar...</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>Skapar ISO-fil...</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>Välj en typ</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>ISO-avbilden har skapats!</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>Total storlek: </translation>
    </message>
</context>
<context>
    <name>CPage4</name>
    <message>
        <source>Load ISO</source>
        <translation>Öppna ISO</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportera</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Byt namn</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nytt</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>&amp;Lägg till</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>&amp;Exportera</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>&amp;Byt namn</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>&amp;Nytt</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>Välj först en rad i listan</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>Det här namnet kan inte användas</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>Det finns redan en fil eller mapp med det här namnet</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>Välj först filer eller mappar i listan.</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>Kopierar filer och mappar...</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>Exporten är klar!</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>Extraherar ISO-avbild...</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Lägg till filer eller mappar först!</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>Sparar ISO-fil...</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>ISO-filen har sparats!</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starta</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialogruta</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>Skapa avbild från skiva</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Källa</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>Välj en CD/DVD-enhet:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>Utdataformat:</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>ISO-format</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Plats</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Välj fil</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Mata ut</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>Välj den ISO-fil som ska sparas</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>Välj den ISO-fil som ska sparas.</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>Startar läsning...</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>CD/DVD-skivan har kopierats!</translation>
    </message>
</context>
<context>
    <name>CProgressDialog</name>
    <message>
        <source>Stop</source>
        <translation>Stoppa</translation>
    </message>
</context>
<context>
    <name>CommDialog</name>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Öppna mapp</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>File Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Storlek</translation>
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
        <translation>Mapp</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Engelska</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Kinesiska</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanska</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Franska</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Tyska</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanska</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>Portugisiska</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polska</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italienska</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Ryska</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Nederländska</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Svenska</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Startsida</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimera</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Meny</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Bränn</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>Skapa startbar USB-enhet eller DVD/CD från ISO</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrahera</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>Extrahera innehåll från ISO</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Skapa</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>
 Skapa ISO från filer 
 eller mappar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>
 Add, delete, rename 
 content in ISO file</source>
        <translation>
 Lägg till, ta bort, byt namn 
 på innehåll i en ISO-fil</translation>
    </message>
    <message>
        <source>Copy Disk</source>
        <translation>Kopiera skiva</translation>
    </message>
    <message>
        <source>
 Make ISO file from 
 CD/DVD disc</source>
        <translation>
 Skapa ISO-fil från 
 en CD/DVD-skiva</translation>
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
        <translation>&amp;Hjälp</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>&amp;Om programmet</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>&amp;Avsluta</translation>
    </message>
    <message>
        <source>CTRL+E</source>
        <translation>CTRL+E</translation>
    </message>
    <message>
        <source>Language(&amp;L)</source>
        <translation>&amp;Språk</translation>
    </message>
</context>
<context>
    <name>Util</name>
    <message>
        <source>Open File</source>
        <translation>Öppna fil</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Öppna filer</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Spara fil</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>Dra först symbolen till mappen Program!</translation>
    </message>
</context>
</TS>
