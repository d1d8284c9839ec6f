<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>Korvex ISO Editor è software libero con licenza MIT. Usalo solo con immagini che sei autorizzato a copiare.</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 Gli sviluppatori di Korvex ISO Editor</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>Sfoglia</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Sfoglia</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Masterizza</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Finestra di dialogo</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>Immagine ISO:</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>Crea un DVD/CD avviabile</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>Scegli un disco, poi fai clic su &quot;Masterizza&quot;</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>Crea un&apos;unità USB avviabile</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>Scegli un&apos;unità USB, poi fai clic su &quot;Masterizza&quot;</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>Stile partizione</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR (per avvio BIOS/CSM)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT (richiesto per UEFI)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>File system</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>Etichetta volume (max 11)</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>Masterizzazione non riuscita! Procedi così:
1.Riprova a masterizzare.
2.Usa un&apos;altra unità USB o un altro DVD.</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>Masterizzazione del disco...</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>Il disco è stato masterizzato correttamente.</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>Collega l&apos;unità USB al computer</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>L&apos;unità USB verrà formattata e tutti i dati che contiene verranno eliminati! Vuoi continuare?</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>Spazio su disco insufficiente. Usa un&apos;unità USB o un CD/DVD di capacità maggiore.</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>Masterizzazione riuscita...</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>Formattazione dell&apos;unità USB...</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>L&apos;unità USB viene resa avviabile...</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>Scrittura sull&apos;unità USB...</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>Elaborazione del file WIM oltre i 4 GB...</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>Inserisci il nome:</translation>
    </message>
</context>
<context>
    <name>CPage2</name>
    <message>
        <source>Load ISO</source>
        <translation>Apri ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Estrai</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>Estrazione da ISO</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>Estrai direttamente tutto il contenuto di un&apos;immagine ISO sul computer.</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>&amp;Estrai</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>Seleziona i file o le cartelle da estrarre</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>Estrazione dei file...</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>Estrazione dei file: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>Copia dei file! Attendi qualche secondo...</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>I file sono stati estratti correttamente.</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>Aggiungi file...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Aggiungi cartella...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>Crea ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>Aggiungi &amp;file</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>Aggiungi &amp;cartelle</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Peso</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Finestra di dialogo</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>Backup di file e cartelle</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>Peso totale: 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>Peso massimo: 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>Tipo di backup:</translation>
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
        <translation>Aggiungi prima file o cartelle!</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>Copia di file e cartelle...</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>Creazione del file ISO...</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>Seleziona un tipo</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>L&apos;immagine ISO è stata creata correttamente!</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>Peso totale: </translation>
    </message>
</context>
<context>
    <name>CPage4</name>
    <message>
        <source>Load ISO</source>
        <translation>Apri ISO</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>&amp;Aggiungi</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>&amp;Esporta</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>E&amp;limina</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>&amp;Nuovo</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>Seleziona prima una riga dell&apos;elenco</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>Questo nome non può essere usato</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>Esiste già un file o una cartella con questo nome</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>Seleziona prima file o cartelle nell&apos;elenco.</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>Copia di file e cartelle...</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>Esportazione riuscita!</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>Estrazione dell&apos;immagine ISO...</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Aggiungi prima file o cartelle!</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>Salvataggio del file ISO...</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>Il file ISO è stato salvato correttamente!</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Finestra di dialogo</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>Crea immagine da disco</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>Unità CD/DVD:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>Formato di output:</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>Formato ISO</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Scegli un file</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Espelli</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>Scegli il file ISO da salvare</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>Scegli il file ISO da salvare.</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>Avvio della lettura...</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>Il CD/DVD è stato copiato correttamente!</translation>
    </message>
</context>
<context>
    <name>CProgressDialog</name>
    <message>
        <source>Stop</source>
        <translation>Interrompi</translation>
    </message>
</context>
<context>
    <name>CommDialog</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Apri cartella</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>File Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Peso</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Inglese</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Cinese</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Giapponese</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francese</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Tedesco</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spagnolo</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>Portoghese</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polacco</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russo</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Olandese</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Svedese</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pagina iniziale</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Masterizza</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>Crea un&apos;unità USB o un DVD/CD avviabile da un&apos;ISO</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Estrai</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>Estrai contenuti da un&apos;ISO</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crea</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>Crea ISO da file o cartelle</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>
 Add, delete, rename 
 content in ISO file</source>
        <translation>
 Aggiungi, elimina, rinomina 
 contenuti del file ISO</translation>
    </message>
    <message>
        <source>Copy Disk</source>
        <translation>Copia disco</translation>
    </message>
    <message>
        <source>
 Make ISO file from 
 CD/DVD disc</source>
        <translation>
 Crea un file ISO 
 da un CD/DVD</translation>
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
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>CTRL+E</source>
        <translation>CTRL+E</translation>
    </message>
    <message>
        <source>Language(&amp;L)</source>
        <translation>&amp;Lingua</translation>
    </message>
</context>
<context>
    <name>Util</name>
    <message>
        <source>Open File</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salva file</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>Trascina prima l&apos;icona nella cartella Applicazioni!</translation>
    </message>
</context>
</TS>
