<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>CAboutusDialog</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Korvex ISO Editor is free software under the MIT licence. Use it only with images that you are allowed to copy.</source>
        <translation>O Korvex ISO Editor é um software livre sob a licença MIT. Use apenas com imagens que você tem permissão para copiar.</translation>
    </message>
    <message>
        <source>© 2026 The Korvex ISO Editor developers</source>
        <translation>© 2026 Os desenvolvedores do Korvex ISO Editor</translation>
    </message>
</context>
<context>
    <name>CBurnDialog</name>
    <message>
        <source>Browse</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Gravar</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Caixa de diálogo</translation>
    </message>
    <message>
        <source>ISO Image:</source>
        <translation>Imagem ISO:</translation>
    </message>
    <message>
        <source>Create A Bootable DVD/CD</source>
        <translation>DVD/CD inicializável</translation>
    </message>
    <message>
        <source>Select a target disc then click BURN button</source>
        <translation>Escolha um disco e clique em &quot;Gravar&quot;</translation>
    </message>
    <message>
        <source>Create A Bootable USB</source>
        <translation>Unidade USB inicializável</translation>
    </message>
    <message>
        <source>Select a target USB then click BURN button</source>
        <translation>Escolha uma unidade USB e clique em &quot;Gravar&quot;</translation>
    </message>
    <message>
        <source>Partition Style</source>
        <translation>Estilo de partição</translation>
    </message>
    <message>
        <source>MBR(for legacy BIOS/CSM boot)</source>
        <translation>MBR (inicialização BIOS/CSM)</translation>
    </message>
    <message>
        <source>GPT(required for UEFI boot)</source>
        <translation>GPT (necessário para UEFI)</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>Sistema de arquivos</translation>
    </message>
    <message>
        <source>Volume Label(Max 11 Chars)</source>
        <translation>Rótulo do volume (máx. 11)</translation>
    </message>
    <message>
        <source>Burn Failed! Do as following:
1.Try to burn again.
2.Change another USB drive or DVD.</source>
        <translation>Falha na gravação! Faça o seguinte:
1.Tente gravar novamente.
2.Use outra unidade USB ou outro DVD.</translation>
    </message>
    <message>
        <source>Burning the disc...</source>
        <translation>Gravando o disco...</translation>
    </message>
    <message>
        <source>Burning disc successfully.</source>
        <translation>Disco gravado com sucesso.</translation>
    </message>
    <message>
        <source>Please insert your USB drive to computer</source>
        <translation>Conecte a unidade USB ao computador</translation>
    </message>
    <message>
        <source>Your USB drive will be formatted and all data in it will be deleted! Do you want to continue?</source>
        <translation>A unidade USB será formatada e todos os dados nela serão excluídos! Deseja continuar?</translation>
    </message>
    <message>
        <source>Insufficient space on disk, please change a large-capacity USB or CD/DVD.</source>
        <translation>Espaço insuficiente no disco. Use uma unidade USB ou CD/DVD de maior capacidade.</translation>
    </message>
    <message>
        <source>Burning Successfully...</source>
        <translation>Gravação concluída com sucesso...</translation>
    </message>
    <message>
        <source>The USB disk is under formating...</source>
        <translation>Formatando a unidade USB...</translation>
    </message>
    <message>
        <source>make usb drive bootable...</source>
        <translation>Tornando a unidade USB inicializável...</translation>
    </message>
    <message>
        <source>Burning the USB disk...</source>
        <translation>Gravando a unidade USB...</translation>
    </message>
    <message>
        <source>Process the wim file larger than 4 GB...</source>
        <translation>Processando o arquivo WIM maior que 4 GB...</translation>
    </message>
</context>
<context>
    <name>CInputDialog</name>
    <message>
        <source>Please input the name:</source>
        <translation>Digite o nome:</translation>
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
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrair</translation>
    </message>
    <message>
        <source>ISO Extract</source>
        <translation>Extrair ISO</translation>
    </message>
    <message>
        <source>Directly extract everything from ISO image file and export to your computer.</source>
        <translation>Extraia diretamente todo o conteúdo de uma imagem ISO para o computador.</translation>
    </message>
    <message>
        <source>Extract(&amp;E)</source>
        <translation>&amp;Extrair</translation>
    </message>
    <message>
        <source>Please select the files or folders you want to extract</source>
        <translation>Selecione os arquivos ou pastas que deseja extrair</translation>
    </message>
    <message>
        <source>Extracting files...</source>
        <translation>Extraindo arquivos...</translation>
    </message>
    <message>
        <source>Extracting files: </source>
        <translation>Extraindo arquivos: </translation>
    </message>
    <message>
        <source>Copying files! Please wait a few seconds..</source>
        <translation>Copiando arquivos! Aguarde alguns segundos...</translation>
    </message>
    <message>
        <source>Extract files successfully.</source>
        <translation>Arquivos extraídos com sucesso.</translation>
    </message>
</context>
<context>
    <name>CPage3</name>
    <message>
        <source>Add Files...</source>
        <translation>Adicionar arquivos...</translation>
    </message>
    <message>
        <source>Add Folder...</source>
        <translation>Adicionar pasta...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Create ISO</source>
        <translation>Criar ISO</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Add Files(&amp;F)</source>
        <translation>Adicionar &amp;arquivos</translation>
    </message>
    <message>
        <source>Add Dirs(&amp;D)</source>
        <translation>Adicionar &amp;pastas</translation>
    </message>
    <message>
        <source>Remove(&amp;R)</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Caminho</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Tamanho</translation>
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
        <translation>Caixa de diálogo</translation>
    </message>
    <message>
        <source>File &amp; Folder Backup</source>
        <translation>Backup de arquivos e pastas</translation>
    </message>
    <message>
        <source>Total Size : 0 KB</source>
        <translation>Tamanho total: 0 KB</translation>
    </message>
    <message>
        <source>Max Size : 5 GB</source>
        <translation>Tamanho máximo: 5 GB</translation>
    </message>
    <message>
        <source>Backup Type:</source>
        <translation>Tipo de backup:</translation>
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
        <translation>Adicione arquivos ou pastas primeiro!</translation>
    </message>
    <message>
        <source>Copy files and folders...</source>
        <translation>Copiando arquivos e pastas...</translation>
    </message>
    <message>
        <source>Creating ISO file...</source>
        <translation>Criando arquivo ISO...</translation>
    </message>
    <message>
        <source>Please select one type</source>
        <translation>Selecione um tipo</translation>
    </message>
    <message>
        <source>Create ISO successfully!</source>
        <translation>ISO criada com sucesso!</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Total Size: </source>
        <translation>Tamanho total: </translation>
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
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Add(&amp;A)</source>
        <translation>&amp;Adicionar</translation>
    </message>
    <message>
        <source>Export(&amp;E)</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>Rename(&amp;R)</source>
        <translation>&amp;Renomear</translation>
    </message>
    <message>
        <source>Delete(&amp;D)</source>
        <translation>E&amp;xcluir</translation>
    </message>
    <message>
        <source>New(&amp;N)</source>
        <translation>&amp;Novo</translation>
    </message>
    <message>
        <source>Please select one row in the table list first</source>
        <translation>Selecione primeiro uma linha da lista</translation>
    </message>
    <message>
        <source>This name cannot be used</source>
        <translation>Este nome não pode ser usado</translation>
    </message>
    <message>
        <source>A file or folder with this name already exists</source>
        <translation>Já existe um arquivo ou pasta com este nome</translation>
    </message>
    <message>
        <source>Please select files or folders in the list first.</source>
        <translation>Selecione primeiro arquivos ou pastas na lista.</translation>
    </message>
    <message>
        <source>Copy files and directories...</source>
        <translation>Copiando arquivos e pastas...</translation>
    </message>
    <message>
        <source>Export Successfully !</source>
        <translation>Exportado com sucesso!</translation>
    </message>
    <message>
        <source>Extracting iso...</source>
        <translation>Extraindo a imagem ISO...</translation>
    </message>
    <message>
        <source>Please add files or folders first!</source>
        <translation>Adicione arquivos ou pastas primeiro!</translation>
    </message>
    <message>
        <source>Saving ISO file...</source>
        <translation>Salvando arquivo ISO...</translation>
    </message>
    <message>
        <source>Save ISO file successfully!</source>
        <translation>Arquivo ISO salvo com sucesso!</translation>
    </message>
</context>
<context>
    <name>CPage5</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Dialog</source>
        <translation>Caixa de diálogo</translation>
    </message>
    <message>
        <source>Make Image From Disc</source>
        <translation>Criar imagem a partir de um disco</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origem</translation>
    </message>
    <message>
        <source>Select a CD/DVD drive:</source>
        <translation>Escolha uma unidade de CD/DVD:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Output Format:</source>
        <translation>Formato de saída:</translation>
    </message>
    <message>
        <source>ISO Format</source>
        <translation>Formato ISO</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Escolher arquivo</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>Ejetar</translation>
    </message>
    <message>
        <source>Please select the iso file to save</source>
        <translation>Escolha o arquivo ISO a salvar</translation>
    </message>
    <message>
        <source>Please select the iso file to save.</source>
        <translation>Escolha o arquivo ISO a salvar.</translation>
    </message>
    <message>
        <source>Start reading...</source>
        <translation>Iniciando a leitura...</translation>
    </message>
    <message>
        <source>Copy CD/DVD successfully!</source>
        <translation>CD/DVD copiado com sucesso!</translation>
    </message>
</context>
<context>
    <name>CProgressDialog</name>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
</context>
<context>
    <name>CommDialog</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir pasta</translation>
    </message>
</context>
<context>
    <name>GerneralDialog</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
        <translation>Nome</translation>
    </message>
    <message>
        <source> Size</source>
        <translation> Tamanho</translation>
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
        <translation>Pasta</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>English</source>
        <translation>Inglês</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>Chinês</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonês</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francês</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemão</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espanhol</translation>
    </message>
    <message>
        <source>Portugues</source>
        <translation>Português</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>Polonês</translation>
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
        <translation>Holandês</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>Sueco</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Página inicial</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Gravar</translation>
    </message>
    <message>
        <source>Make bootable USB or DVD/CD from ISO</source>
        <translation>Criar unidade USB ou DVD/CD inicializável a partir de ISO</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Extrair</translation>
    </message>
    <message>
        <source>Extract content from ISO</source>
        <translation>Extrair conteúdo de uma ISO</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Criar</translation>
    </message>
    <message>
        <source>Create ISO from file or folder</source>
        <translation>
 Criar ISO a partir de 
 arquivos ou pastas</translation>
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
 Adicionar, excluir e renomear 
 conteúdo de um arquivo ISO</translation>
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
 Criar arquivo ISO 
 a partir de CD/DVD</translation>
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
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>CTRL+H</source>
        <translation>CTRL+H</translation>
    </message>
    <message>
        <source>About Us(&amp;U)</source>
        <translation>&amp;Sobre</translation>
    </message>
    <message>
        <source>CTRL+U</source>
        <translation>CTRL+U</translation>
    </message>
    <message>
        <source>Exit(&amp;E)</source>
        <translation>Sai&amp;r</translation>
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
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Abrir arquivos</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salvar arquivo</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Please drag the icon to Application folder first!</source>
        <translation>Arraste primeiro o ícone para a pasta Aplicativos!</translation>
    </message>
</context>
</TS>
