<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>Korvex ISO Editor to wolne oprogramowanie na licencji MIT. Używaj go tylko z obrazami, które wolno Ci kopiować.</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 Twórcy programu Korvex ISO Editor</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>Przeglądaj</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Przeglądaj</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Nagraj</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Okno dialogowe</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>Obraz ISO:</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>Rozruchowa płyta DVD/CD</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>Wybierz płytę i kliknij przycisk &quot;Nagraj&quot;</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>Rozruchowy dysk USB</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>Wybierz dysk USB i kliknij przycisk &quot;Nagraj&quot;</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>Styl partycji</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR (dla starszego BIOS/CSM)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT (wymagane dla UEFI)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>System plików</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>Etykieta woluminu (maks. 11 zn.)</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>Nagrywanie nie powiodło się! Wykonaj następujące czynności:
1.Spróbuj nagrać ponownie.
2.Użyj innego dysku USB lub innej płyty DVD.</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>Nagrywanie płyty...</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>Płyta została nagrana.</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>Podłącz dysk USB do komputera</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>Dysk USB zostanie sformatowany, a wszystkie dane na nim zostaną usunięte! Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>Za mało miejsca na dysku. Użyj dysku USB lub płyty CD/DVD o większej pojemności.</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>Nagrywanie zakończone...</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>Formatowanie dysku USB...</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>Tworzenie rozruchowego dysku USB...</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>Nagrywanie na dysk USB...</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>Przetwarzanie pliku WIM większego niż 4 GB...</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>Podaj nazwę:</translation>
    </message>
</context>
<context>
    <name>CPage2</name>
    <message>
        <source>Load ISO</source>
        <translation>Otwórz ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Wyodrębnij</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>Wyodrębnianie z ISO</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>Wyodrębnij bezpośrednio całą zawartość obrazu ISO i zapisz ją na komputerze.</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>Wyodrębni&amp;j</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>Zaznacz pliki lub foldery, które chcesz wyodrębnić</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>Wyodrębnianie plików...</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>Wyodrębnianie plików: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>Kopiowanie plików! Poczekaj kilka sekund...</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>Pliki zostały wyodrębnione.</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>Dodaj pliki...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Dodaj folder...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>Utwórz ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>Dodaj &amp;pliki</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>Dodaj &amp;foldery</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Ścieżka</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Rozmiar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Okno dialogowe</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>Kopia zapasowa plików i folderów</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>Łączny rozmiar: 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>Maksymalny rozmiar: 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>Rodzaj kopii:</translation>
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
        <translation>ISO UDF</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Najpierw dodaj pliki lub foldery!</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>Kopiowanie plików i folderów...</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>Tworzenie pliku ISO...</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>Wybierz rodzaj</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>Obraz ISO został utworzony!</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>Łączny rozmiar: </translation>
    </message>
</context>
<context>
    <name>CPage4</name>
    <message>
        <source>Load ISO</source>
        <translation>Otwórz ISO</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksportuj</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nowy</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>&amp;Dodaj</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>&amp;Eksportuj</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>&amp;Zmień nazwę</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>&amp;Nowy</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>Najpierw zaznacz wiersz na liście</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>Nie można użyć tej nazwy</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>Plik lub folder o tej nazwie już istnieje</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>Najpierw zaznacz pliki lub foldery na liście.</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>Kopiowanie plików i folderów...</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>Wyeksportowano!</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>Wyodrębnianie obrazu ISO...</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Najpierw dodaj pliki lub foldery!</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>Zapisywanie pliku ISO...</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>Plik ISO został zapisany!</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Rozpocznij</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Okno dialogowe</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>Tworzenie obrazu z płyty</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Źródło</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>Napęd CD/DVD:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>Format wyjściowy:</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>Format ISO</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lokalizacja</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Wybierz plik</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Wysuń</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>Wybierz plik ISO do zapisania</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>Wybierz plik ISO do zapisania.</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>Rozpoczynanie odczytu...</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>Płyta CD/DVD została skopiowana!</translation>
    </message>
</context>
<context>
    <name>CProgressDialog</name>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
</context>
<context>
    <name>CommDialog</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Otwórz folder</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>File Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Rozmiar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Angielski</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chiński</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japoński</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francuski</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Niemiecki</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Hiszpański</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>Portugalski</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polski</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Włoski</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Rosyjski</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Niderlandzki</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Szwedzki</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Strona główna</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizuj</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Nagraj</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>Utwórz rozruchowy dysk USB lub DVD/CD z obrazu ISO</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Wyodrębnij</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>Wyodrębnij zawartość ISO</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Utwórz</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>
 Utwórz ISO z plików 
 lub folderów</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>
 Add, delete, rename 
 content in ISO file</source>
        <translation>
 Dodawaj, usuwaj i zmieniaj 
 nazwy w pliku ISO</translation>
    </message>
    <message>
        <source>Copy Disk</source>
        <translation>Kopiuj płytę</translation>
    </message>
    <message>
        <source>
 Make ISO file from 
 CD/DVD disc</source>
        <translation>
 Utwórz plik ISO 
 z płyty CD/DVD</translation>
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
        <translation>&amp;Pomoc</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>&amp;O programie</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>CTRL+E</source>
        <translation>CTRL+E</translation>
    </message>
    <message>
        <source>Language(&amp;L)</source>
        <translation>&amp;Język</translation>
    </message>
</context>
<context>
    <name>Util</name>
    <message>
        <source>Open File</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Otwórz pliki</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Zapisz plik</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>Najpierw przeciągnij ikonę do folderu Aplikacje!</translation>
    </message>
</context>
</TS>
