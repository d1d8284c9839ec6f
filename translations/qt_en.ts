<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 The Korvex ISO Editor developers</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>Browse</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Burn</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>ISO Image:</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>Create A Bootable DVD/CD</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>Select a target disc then click BURN button</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>Create A Bootable USB</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>Select a target USB then click BURN button</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>Partition Style</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR(for legacy BIOS/CSM boot)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT(required for UEFI boot)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>File System</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>Volume Label(Max 11 Chars)</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>Burning the disc...</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>Burning disc successfully.</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>Please insert your USB drive to computer</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>Burning Successfully...</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>The USB disk is under formating...</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>make usb drive bootable...</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>Burning the USB disk...</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>Process the wim file larger than 4 GB...</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>Please input the name:</translation>
    </message>
</context>
<context>
    <name>CPage2</name>
    <message>
        <source>Load ISO</source>
        <translation>Load ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extract</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>ISO Extract</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>Directly extract everything from ISO image file and export to your computer.</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>Extract(&amp;E)</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>Please select the files or folders you want to extract</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>Extracting files...</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>Extracting files: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>Copying files! Please wait a few seconds..</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>Extract files successfully.</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>Add Files...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Add Folder...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>Create ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>Add Files(&amp;F)</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>Add Dirs(&amp;D)</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>Remove(&amp;R)</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>File Name</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>File Path</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Size</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>File &amp; Folder Backup</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>Total Size : 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>Max Size : 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>Backup Type:</translation>
    </message>
    <message>
        <source>ISO9660 Jolet</source>
        <translation>ISO9660 Jolet</translation>
    </message>
    <message>
        <source>ISO9660</source>
        <translation>ISO9660</translation>
    </message>
    <message>
        <source>UDF ISO</source>
        <translation>UDF ISO</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Please add files or folders first!</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>Copy files and folders...</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>Creating ISO file...</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>Please select one type</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>Create ISO successfully!</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>Total Size: </translation>
    </message>
</context>
<context>
    <name>CPage4</name>
    <message>
        <source>Load ISO</source>
        <translation>Load ISO</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>Add(&amp;A)</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>Export(&amp;E)</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>Rename(&amp;R)</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>Delete(&amp;D)</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>New(&amp;N)</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>Please select one row in the table list first</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>This name cannot be used</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>A file or folder with this name already exists</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>Please select files or folders in the list first.</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>Copy files and directories...</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>Export Successfully !</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>Extracting iso...</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Please add files or folders first!</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>Saving ISO file...</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>Save ISO file successfully!</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>Make Image From Disc</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>Select a CD/DVD drive:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>Output Format:</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>ISO Format</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Location</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Choose a file</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Eject</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>Please select the iso file to save</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>Please select the iso file to save.</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>Start reading...</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>Copy CD/DVD successfully!</translation>
    </message>
</context>
<context>
    <name>CProgressDialog</name>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
</context>
<context>
    <name>CommDialog</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>NO</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Open Folder</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>NO</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>File Name</source>
        <translation>File Name</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Size</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
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
        <translation>English</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinese</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanese</translation>
    </message>
    <message>
        <source>French</source>
        <translation>French</translation>
    </message>
    <message>
        <source>German</source>
        <translation>German</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanish</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>Portugues</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polish</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italian</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russian</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Netherlands</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Swedish</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Burn</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>Make bootable USB or DVD/CD from ISO</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extract</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>Extract content from ISO</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Create</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>Create ISO from file or folder</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>
 Add, delete, rename 
 content in ISO file</source>
        <translation>
 Add, delete, rename 
 content in ISO file</translation>
    </message>
    <message>
        <source>Copy Disk</source>
        <translation>Copy Disk</translation>
    </message>
    <message>
        <source>
 Make ISO file from 
 CD/DVD disc</source>
        <translation>
 Make ISO file from 
 CD/DVD disc</translation>
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
        <translation>Help(&amp;H)</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>About Us(&amp;U)</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>Exit(&amp;E)</translation>
    </message>
    <message>
        <source>CTRL+E</source>
        <translation>CTRL+E</translation>
    </message>
    <message>
        <source>Language(&amp;L)</source>
        <translation>Language(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Util</name>
    <message>
        <source>Open File</source>
        <translation>Open File</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Open Files</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Open Folder</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Save File</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>Please drag the icon to Application folder first!</translation>
    </message>
</context>
</TS>
