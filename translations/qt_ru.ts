<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>Korvex ISO Editor — свободная программа под лицензией MIT. Используйте её только с образами, которые вам разрешено копировать.</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 Разработчики Korvex ISO Editor</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Диалог</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>Образ ISO:</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>Загрузочный DVD/CD</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>Выберите диск и нажмите кнопку «Записать»</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>Загрузочный USB</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>Выберите USB и нажмите кнопку «Записать»</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>Стиль разделов</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR (для загрузки BIOS/CSM)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT (для загрузки UEFI)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>Файловая система</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>Метка тома (до 11 символов)</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>Не удалось записать! Сделайте следующее:
1.Попробуйте записать ещё раз.
2.Возьмите другой USB-накопитель или DVD.</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>Запись диска...</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>Диск успешно записан.</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>Подключите USB-накопитель к компьютеру</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>USB-накопитель будет отформатирован, и все данные на нём будут удалены! Продолжить?</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>Недостаточно места на диске. Возьмите USB-накопитель или CD/DVD большей ёмкости.</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>Запись успешно завершена...</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>Форматирование USB-накопителя...</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>USB-накопитель делается загрузочным...</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>Запись на USB-накопитель...</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>Обработка файла WIM больше 4 GB...</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>Введите имя:</translation>
    </message>
</context>
<context>
    <name>CPage2</name>
    <message>
        <source>Load ISO</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Извлечь</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>Извлечение из ISO</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>Извлеките всё содержимое образа ISO напрямую на свой компьютер.</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>&amp;Извлечь</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>Выберите файлы или папки, которые нужно извлечь</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>Извлечение файлов...</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>Извлечение файлов: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>Копирование файлов! Подождите немного...</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>Файлы успешно извлечены.</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>Добавить файлы...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Добавить папку...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>Создать ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>Добавить &amp;файлы</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>Добавить &amp;папки</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>&amp;Убрать</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Размер</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Диалог</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>Резервная копия файлов и папок</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>Общий размер: 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>Максимальный размер: 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>Тип копии:</translation>
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
        <translation>UDF ISO</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Сначала добавьте файлы или папки!</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>Копирование файлов и папок...</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>Создание файла ISO...</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>Выберите тип</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>Образ ISO успешно создан!</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>Общий размер: </translation>
    </message>
</context>
<context>
    <name>CPage4</name>
    <message>
        <source>Load ISO</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>&amp;Добавить</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>&amp;Экспорт</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>&amp;Переименовать</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>&amp;Создать</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>Сначала выберите строку в списке</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>Это имя нельзя использовать</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>Файл или папка с таким именем уже существует</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>Сначала выберите файлы или папки в списке.</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>Копирование файлов и папок...</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>Экспорт успешно завершён!</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>Извлечение образа ISO...</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Сначала добавьте файлы или папки!</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>Сохранение файла ISO...</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>Файл ISO успешно сохранён!</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Начать</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Диалог</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>Создание образа с диска</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Источник</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>Выберите дисковод CD/DVD:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Назначение</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>Формат вывода:</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>Формат ISO</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Расположение</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Выбрать файл</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Извлечь</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>Выберите файл ISO для сохранения</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>Выберите файл ISO для сохранения.</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>Начало чтения...</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>CD/DVD успешно скопирован!</translation>
    </message>
</context>
<context>
    <name>CProgressDialog</name>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
</context>
<context>
    <name>CommDialog</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Открыть папку</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>File Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Размер</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Английский</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Китайский</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Японский</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Французский</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Немецкий</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Испанский</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>Португальский</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Польский</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Итальянский</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Нидерландский</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Шведский</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Домашняя страница</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Записать</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>Создать загрузочный USB или DVD/CD из образа ISO</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Извлечь</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>Извлечь содержимое ISO</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>
 Создать ISO из файлов 
 или папок</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>
 Add, delete, rename 
 content in ISO file</source>
        <translation>
 Добавить, удалить, 
 переименовать файлы в ISO</translation>
    </message>
    <message>
        <source>Copy Disk</source>
        <translation>Копировать диск</translation>
    </message>
    <message>
        <source>
 Make ISO file from 
 CD/DVD disc</source>
        <translation>
 Создать файл ISO 
 с диска CD/DVD</translation>
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
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>&amp;О программе</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>CTRL+E</source>
        <translation>CTRL+E</translation>
    </message>
    <message>
        <source>Language(&amp;L)</source>
        <translation>&amp;Язык</translation>
    </message>
</context>
<context>
    <name>Util</name>
    <message>
        <source>Open File</source>
        <translation>Открыть файл</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Открыть файлы</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Сохранить файл</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>Сначала перетащите значок в папку «Программы»!</translation>
    </message>
</context>
</TS>
