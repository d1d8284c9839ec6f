<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>Korvex ISO Editor es software libre con licencia MIT. Úselo solo con imágenes que tenga permiso para copiar.</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 Los desarrolladores de Korvex ISO Editor</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>Examinar</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Examinar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Cuadro de diálogo</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>Imagen ISO:</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>DVD/CD de arranque</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>Elija un disco y haga clic en «Grabar»</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>Unidad USB de arranque</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>Elija una unidad USB y haga clic en «Grabar»</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>Estilo de partición</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR (para arranque BIOS/CSM)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT (necesario para UEFI)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>Sistema de archivos</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>Etiqueta de volumen (máx. 11)</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>¡Error al grabar! Haga lo siguiente:
1.Intente grabar de nuevo.
2.Use otra unidad USB u otro DVD.</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>Grabando el disco...</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>El disco se ha grabado correctamente.</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>Conecte la unidad USB al equipo</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>¡La unidad USB se formateará y se eliminarán todos sus datos! ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>No hay espacio suficiente. Use una unidad USB o un CD/DVD de mayor capacidad.</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>Grabación correcta...</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>Formateando la unidad USB...</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>Haciendo arrancable la unidad USB...</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>Grabando la unidad USB...</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>Procesando el archivo WIM de más de 4 GB...</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>Escriba el nombre:</translation>
    </message>
</context>
<context>
    <name>CPage2</name>
    <message>
        <source>Load ISO</source>
        <translation>Abrir ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extraer</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>Extraer ISO</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>Extraiga directamente todo el contenido de una imagen ISO a su equipo.</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>&amp;Extraer</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>Seleccione los archivos o carpetas que desea extraer</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>Extrayendo archivos...</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>Extrayendo archivos: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>¡Copiando archivos! Espere unos segundos...</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>Los archivos se han extraído correctamente.</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>Añadir archivos...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Añadir carpeta...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>Crear ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>Añadir &amp;archivos</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>Añadir &amp;carpetas</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Tamaño</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Cuadro de diálogo</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>Copia de seguridad de archivos y carpetas</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>Tamaño total: 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>Tamaño máximo: 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>Tipo de copia:</translation>
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
        <translation>¡Añada primero archivos o carpetas!</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>Copiando archivos y carpetas...</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>Creando archivo ISO...</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>Seleccione un tipo</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>¡La imagen ISO se ha creado correctamente!</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>Tamaño total: </translation>
    </message>
</context>
<context>
    <name>CPage4</name>
    <message>
        <source>Load ISO</source>
        <translation>Abrir ISO</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>&amp;Añadir</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>&amp;Renombrar</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>Seleccione primero una fila de la lista</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>No se puede usar este nombre</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>Ya existe un archivo o una carpeta con este nombre</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>Seleccione primero archivos o carpetas en la lista.</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>Copiando archivos y carpetas...</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>¡Exportación correcta!</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>Extrayendo la imagen ISO...</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>¡Añada primero archivos o carpetas!</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>Guardando archivo ISO...</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>¡El archivo ISO se ha guardado correctamente!</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Cuadro de diálogo</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>Crear imagen a partir de un disco</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>Elija una unidad de CD/DVD:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>Formato de salida:</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>Formato ISO</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Elegir archivo</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Expulsar</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>Elija el archivo ISO que desea guardar</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>Elija el archivo ISO que desea guardar.</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>Iniciando la lectura...</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>¡El CD/DVD se ha copiado correctamente!</translation>
    </message>
</context>
<context>
    <name>CProgressDialog</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
</context>
<context>
    <name>CommDialog</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>File Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Tamaño</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chino</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonés</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>Portugués</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polaco</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Ruso</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Neerlandés</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Sueco</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Página de inicio</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>Crear una unidad USB o un DVD/CD de arranque desde un ISO</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extraer</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>Extraer contenido de un ISO</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>
 Crear un ISO con archivos 
 o carpetas</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>
 Add, delete, rename 
 content in ISO file</source>
        <translation>
 Añadir, eliminar y renombrar 
 contenido de un archivo ISO</translation>
    </message>
    <message>
        <source>Copy Disk</source>
        <translation>Copiar disco</translation>
    </message>
    <message>
        <source>
 Make ISO file from 
 CD/DVD disc</source>
        <translation>
 Crear un archivo ISO 
 desde un CD/DVD</translation>
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
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>Acerca &amp;de</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>CTRL+E</source>
        <translation>CTRL+E</translation>
    </message>
    <message>
        <source>Language(&amp;L)</source>
        <translation>&amp;Idioma</translation>
    </message>
</context>
<context>
    <name>Util</name>
    <message>
        <source>Open File</source>
        <translation>Abrir archivo</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Abrir archivos</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar archivo</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>¡Arrastre primero el icono a la carpeta Aplicaciones!</translation>
    </message>
</context>
</TS>
