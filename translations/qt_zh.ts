<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>Korvex ISO Editor 是遵循 MIT 许可证的自由软件。请仅将其用于您有权复制的镜像。</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 Korvex ISO Editor 开发者</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>刻录</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>ISO 镜像：</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>制作可启动的 DVD/CD</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>选择目标光盘，然后点击“刻录”按钮</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>制作可启动的 USB</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>选择目标 USB，然后点击“刻录”按钮</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>分区样式</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR (用于传统 BIOS/CSM 启动)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT (UEFI 启动需要)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>文件系统</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>卷标 (最多11字符)</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>刻录失败！请按以下步骤操作：
1.再次尝试刻录。
2.更换其他 USB 驱动器或 DVD。</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>正在刻录光盘…</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>光盘刻录成功。</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>请将 USB 驱动器插入电脑</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>您的 USB 驱动器将被格式化，其中的所有数据都将被删除！是否继续？</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>磁盘空间不足，请更换容量更大的 USB 或 CD/DVD。</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>刻录成功…</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>正在格式化 USB 驱动器…</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>正在使 USB 驱动器可启动…</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>正在写入 USB 驱动器…</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>正在处理大于 4 GB 的 WIM 文件…</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>请输入名称：</translation>
    </message>
</context>
<context>
    <name>CPage2</name>
    <message>
        <source>Load ISO</source>
        <translation>加载 ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>提取</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>提取 ISO</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>直接提取 ISO 镜像文件中的所有内容并导出到您的电脑。</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>提取(&amp;E)</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>请选择要提取的文件或文件夹</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>正在提取文件…</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>正在提取文件: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>正在复制文件！请稍候…</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>文件提取成功。</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>添加文件…</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>添加文件夹…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>创建 ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>添加文件(&amp;F)</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>添加文件夹(&amp;D)</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>文件路径</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> 大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>文件和文件夹备份</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>总大小: 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>最大容量: 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>备份类型：</translation>
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
        <translation>请先添加文件或文件夹！</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>正在复制文件和文件夹…</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>正在创建 ISO 文件…</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>请选择一种类型</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>ISO 创建成功！</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>总大小: </translation>
    </message>
</context>
<context>
    <name>CPage4</name>
    <message>
        <source>Load ISO</source>
        <translation>加载 ISO</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>导出(&amp;E)</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>请先在列表中选择一行</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>无法使用此名称</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>已存在同名的文件或文件夹</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>请先在列表中选择文件或文件夹。</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>正在复制文件和文件夹…</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>导出成功！</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>正在提取 ISO…</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>请先添加文件或文件夹！</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>正在保存 ISO 文件…</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>ISO 文件保存成功！</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>用光盘制作镜像</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>选择 CD/DVD 光驱：</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>输出格式：</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>ISO 格式</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>弹出</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>请选择要保存的 ISO 文件</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>请选择要保存的 ISO 文件。</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>开始读取…</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>CD/DVD 复制成功！</translation>
    </message>
</context>
<context>
    <name>CProgressDialog</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
</context>
<context>
    <name>CommDialog</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ImagePage</name>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> 大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日语</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>葡萄牙语</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>波兰语</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利语</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>荷兰语</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>瑞典语</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>刻录</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>用 ISO 制作可启动的 USB 或 DVD/CD</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>提取</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>从 ISO 中提取内容</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>用文件或文件夹创建 ISO</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>
 Add, delete, rename 
 content in ISO file</source>
        <translation>
 添加、删除、重命名 
 ISO 文件中的内容</translation>
    </message>
    <message>
        <source>Copy Disk</source>
        <translation>复制光盘</translation>
    </message>
    <message>
        <source>
 Make ISO file from 
 CD/DVD disc</source>
        <translation>
 用 CD/DVD 光盘 
 制作 ISO 文件</translation>
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
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>关于我们(&amp;U)</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>退出(&amp;E)</translation>
    </message>
    <message>
        <source>CTRL+E</source>
        <translation>CTRL+E</translation>
    </message>
    <message>
        <source>Language(&amp;L)</source>
        <translation>语言(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Util</name>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>请先将图标拖到“应用程序”文件夹！</translation>
    </message>
</context>
</TS>
