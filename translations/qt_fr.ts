<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>Korvex ISO Editor est un logiciel libre sous licence MIT. Ne l&apos;utilisez qu&apos;avec des images que vous êtes autorisé à copier.</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 Les développeurs de Korvex ISO Editor</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Graver</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>Image ISO&#xa0;:</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>Créer un DVD/CD amorçable</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>Choisissez un disque, puis cliquez sur «&#xa0;Graver&#xa0;»</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>Créer une clé USB amorçable</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>Choisissez une clé USB, puis cliquez sur «&#xa0;Graver&#xa0;»</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>Style de partition</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR (pour ancien BIOS/CSM)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT (requis pour l&apos;UEFI)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>Système de fichiers</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>Nom de volume (11 car. max.)</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>Échec de la gravure&#xa0;! Procédez comme suit&#xa0;:
1.Recommencez la gravure.
2.Essayez une autre clé USB ou un autre DVD.</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>Gravure du disque...</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>Le disque a été gravé.</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>Branchez votre clé USB sur l&apos;ordinateur</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>Votre clé USB va être formatée et toutes ses données seront supprimées&#xa0;! Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>Espace disque insuffisant. Utilisez une clé USB ou un CD/DVD de plus grande capacité.</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>Gravure réussie...</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>Formatage de la clé USB...</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>La clé USB est rendue amorçable...</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>Gravure sur la clé USB...</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>Traitement du fichier WIM de plus de 4 GB...</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>Saisissez le nom&#xa0;:</translation>
    </message>
</context>
<context>
    <name>CPage2</name>
    <message>
        <source>Load ISO</source>
        <translation>Ouvrir ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extraire</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>Extraction d&apos;ISO</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>Extrayez directement tout le contenu d&apos;une image ISO vers votre ordinateur.</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>&amp;Extraire</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>Sélectionnez les fichiers ou dossiers à extraire</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>Extraction des fichiers...</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>Extraction des fichiers&#xa0;: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>Copie des fichiers&#xa0;! Patientez quelques secondes...</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>Les fichiers ont été extraits.</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>Ajouter des fichiers...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Ajouter un dossier...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>Créer l&apos;ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>Ajouter des &amp;fichiers</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>Ajouter des &amp;dossiers</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Taille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>Sauvegarde de fichiers et de dossiers</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>Taille totale&#xa0;: 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>Taille maximale&#xa0;: 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>Type de sauvegarde&#xa0;:</translation>
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
        <translation>Ajoutez d&apos;abord des fichiers ou des dossiers&#xa0;!</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>Copie des fichiers et dossiers...</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>Création du fichier ISO...</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>Sélectionnez un type</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>L&apos;ISO a été créée&#xa0;!</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>Taille totale&#xa0;: </translation>
    </message>
</context>
<context>
    <name>CPage4</name>
    <message>
        <source>Load ISO</source>
        <translation>Ouvrir ISO</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>Sélectionnez d&apos;abord une ligne de la liste</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>Ce nom ne peut pas être utilisé</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>Un fichier ou dossier portant ce nom existe déjà</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>Sélectionnez d&apos;abord des fichiers ou des dossiers dans la liste.</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>Copie des fichiers et dossiers...</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>Exportation réussie&#xa0;!</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>Extraction de l&apos;ISO...</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Ajoutez d&apos;abord des fichiers ou des dossiers&#xa0;!</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>Enregistrement du fichier ISO...</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>Le fichier ISO a été enregistré&#xa0;!</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Boîte de dialogue</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>Créer une image à partir d&apos;un disque</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>Choisissez un lecteur CD/DVD&#xa0;:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>Format de sortie&#xa0;:</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>Format ISO</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Éjecter</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>Choisissez le fichier ISO à enregistrer</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>Choisissez le fichier ISO à enregistrer.</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>Début de la lecture...</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>Le CD/DVD a été copié&#xa0;!</translation>
    </message>
</context>
<context>
    <name>CProgressDialog</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
</context>
<context>
    <name>CommDialog</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>File Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Taille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinois</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>Portugais</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polonais</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italien</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russe</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Néerlandais</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Suédois</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Graver</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>Créer une clé USB ou un DVD/CD amorçable à partir d&apos;une ISO</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extraire</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>Extraire le contenu d&apos;une ISO</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>
 Créer une ISO avec des 
 fichiers ou dossiers</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>
 Add, delete, rename 
 content in ISO file</source>
        <translation>
 Ajouter, supprimer, renommer 
 le contenu d&apos;une ISO</translation>
    </message>
    <message>
        <source>Copy Disk</source>
        <translation>Copier un disque</translation>
    </message>
    <message>
        <source>
 Make ISO file from 
 CD/DVD disc</source>
        <translation>
 Créer un fichier ISO 
 à partir d&apos;un CD/DVD</translation>
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
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>CTRL+E</source>
        <translation>CTRL+E</translation>
    </message>
    <message>
        <source>Language(&amp;L)</source>
        <translation>&amp;Langue</translation>
    </message>
</context>
<context>
    <name>Util</name>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Ouvrir des fichiers</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>Faites d&apos;abord glisser l&apos;icône dans le dossier Applications&#xa0;!</translation>
    </message>
</context>
</TS>
