<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DSDIFFMetaData</name>
    <message>
        <source>Its chunks are damaged</source>
        <translation>文件的数据块已损坏</translation>
    </message>
    <message>
        <source>It has several ID3v2 tags; all but one would be lost.</source>
        <translation>文件有多个 ID3v2 标签；除一个以外都会丢失。</translation>
    </message>
    <message>
        <source>Its chunks are damaged.</source>
        <translation>文件的数据块已损坏。</translation>
    </message>
</context>
<context>
    <name>DSFMetaData</name>
    <message>
        <source>Its header does not fit its contents.</source>
        <translation>文件头与内容不符。</translation>
    </message>
    <message>
        <source>The file is truncated.</source>
        <translation>文件不完整，已被截断。</translation>
    </message>
</context>
<context>
    <name>FLACMetaData</name>
    <message>
        <source>The tags of a FLAC file cannot be larger than 16 MiB.</source>
        <translation>FLAC 文件的标签不能大于 16 MiB。</translation>
    </message>
    <message>
        <source>A picture in a FLAC file cannot be larger than 16 MiB.</source>
        <translation>FLAC 文件中的图片不能大于 16 MiB。</translation>
    </message>
</context>
<context>
    <name>HRFAfterMove</name>
    <message>
        <source>Remove Empty Directories</source>
        <translation>移除空文件夹</translation>
    </message>
    <message>
        <source>Remove following empty directories?</source>
        <translation>要移除下列空文件夹吗？</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>不再询问</translation>
    </message>
    <message>
        <source>Moving accompanying files…</source>
        <translation>正在移动附属文件…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>The empty folder “%1” could not be moved to the Trash</source>
        <translation>无法将空文件夹“%1”移到回收站</translation>
    </message>
</context>
<context>
    <name>HRFApplicationDelegate</name>
    <message>
        <source>Lirra %1</source>
        <translation>Lirra %1</translation>
    </message>
</context>
<context>
    <name>HRFArtworkPane</name>
    <message>
        <source>Artwork</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>Drop a picture here</source>
        <translation>将图片拖到此处</translation>
    </message>
    <message>
        <source>Several pictures</source>
        <translation>多张图片</translation>
    </message>
    <message>
        <source>Cannot be shown</source>
        <translation>无法显示</translation>
    </message>
    <message>
        <source>Set Artwork</source>
        <translation>设置封面</translation>
    </message>
    <message>
        <source>Choose Picture</source>
        <translation>选择图片</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>图片 (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>存储图片</translation>
    </message>
    <message>
        <source>Choose Picture…</source>
        <translation>选择图片…</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>拷贝</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>存储为…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>HRFAttributeDescription</name>
    <message>
        <source>Number could not be parsed</source>
        <translation>无法识别该数字</translation>
    </message>
    <message>
        <source>Number is too big</source>
        <translation>数字太大</translation>
    </message>
    <message>
        <source>Date could not be parsed</source>
        <translation>无法识别该日期</translation>
    </message>
</context>
<context>
    <name>HRFAttributeNames</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>艺术家</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>专辑</translation>
    </message>
    <message>
        <source>Album Artist</source>
        <translation>专辑艺术家</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>音轨号</translation>
    </message>
    <message>
        <source>Track Total</source>
        <translation>音轨总数</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>光盘号</translation>
    </message>
    <message>
        <source>Disc Total</source>
        <translation>光盘总数</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年份</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>流派</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>作曲</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>注释</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Compilation</source>
        <translation>合辑</translation>
    </message>
    <message>
        <source>BPM</source>
        <translation>每分钟节拍数</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>评分</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>歌词</translation>
    </message>
    <message>
        <source>Subtitle</source>
        <translation>副标题</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>作品</translation>
    </message>
    <message>
        <source>Movement Name</source>
        <translation>乐章名称</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>乐章号</translation>
    </message>
    <message>
        <source>Movement Total</source>
        <translation>乐章总数</translation>
    </message>
    <message>
        <source>Conductor</source>
        <translation>指挥</translation>
    </message>
    <message>
        <source>Lyricist</source>
        <translation>作词</translation>
    </message>
    <message>
        <source>Remixer</source>
        <translation>混音</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>发行商</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>版权</translation>
    </message>
    <message>
        <source>Release Date</source>
        <translation>发行日期</translation>
    </message>
    <message>
        <source>Original Release Date</source>
        <translation>原始发行日期</translation>
    </message>
    <message>
        <source>Original Artist</source>
        <translation>原艺术家</translation>
    </message>
    <message>
        <source>Original Album</source>
        <translation>原专辑</translation>
    </message>
    <message>
        <source>Original Lyricist</source>
        <translation>原作词</translation>
    </message>
    <message>
        <source>Original File Name</source>
        <translation>原文件名</translation>
    </message>
    <message>
        <source>Sort Title</source>
        <translation>标题（排序）</translation>
    </message>
    <message>
        <source>Sort Artist</source>
        <translation>艺术家（排序）</translation>
    </message>
    <message>
        <source>Sort Album</source>
        <translation>专辑（排序）</translation>
    </message>
    <message>
        <source>Sort Album Artist</source>
        <translation>专辑艺术家（排序）</translation>
    </message>
    <message>
        <source>Sort Composer</source>
        <translation>作曲（排序）</translation>
    </message>
    <message>
        <source>Disc Subtitle</source>
        <translation>光盘副标题</translation>
    </message>
    <message>
        <source>Involved People</source>
        <translation>参与人员</translation>
    </message>
    <message>
        <source>Musician Credits</source>
        <translation>演奏人员</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>调性</translation>
    </message>
    <message>
        <source>Mood</source>
        <translation>情绪</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>ISRC</source>
        <translation>ISRC</translation>
    </message>
    <message>
        <source>Media Type</source>
        <translation>介质类型</translation>
    </message>
    <message>
        <source>File Type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Playlist Delay</source>
        <translation>播放列表延迟</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Produced Notice</source>
        <translation>制作版权说明</translation>
    </message>
    <message>
        <source>File Owner</source>
        <translation>文件所有者</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>编码者</translation>
    </message>
    <message>
        <source>Encoder Settings</source>
        <translation>编码设置</translation>
    </message>
    <message>
        <source>Encoding Date</source>
        <translation>编码日期</translation>
    </message>
    <message>
        <source>Tagging Date</source>
        <translation>标签写入日期</translation>
    </message>
    <message>
        <source>Radio Station</source>
        <translation>电台</translation>
    </message>
    <message>
        <source>Radio Station Owner</source>
        <translation>电台所有者</translation>
    </message>
    <message>
        <source>Podcast</source>
        <translation>播客</translation>
    </message>
    <message>
        <source>Podcast Description</source>
        <translation>播客说明</translation>
    </message>
    <message>
        <source>Podcast ID</source>
        <translation>播客标识</translation>
    </message>
    <message>
        <source>Podcast URL</source>
        <translation>播客网址</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Bit Rate</source>
        <translation>比特率</translation>
    </message>
    <message>
        <source>Variable Bit Rate</source>
        <translation>可变比特率</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>采样率</translation>
    </message>
    <message>
        <source>Bit Depth</source>
        <translation>位深度</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>声道数</translation>
    </message>
    <message>
        <source>Channel Mode</source>
        <translation>声道模式</translation>
    </message>
    <message>
        <source>Tag Version</source>
        <translation>标签版本</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>File Extension</source>
        <translation>扩展名</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>修改日期</translation>
    </message>
    <message>
        <source>Date Created</source>
        <translation>创建日期</translation>
    </message>
    <message>
        <source>Artwork Type</source>
        <translation>封面类型</translation>
    </message>
    <message>
        <source>Artwork Size</source>
        <translation>封面尺寸</translation>
    </message>
    <message>
        <source>Artwork Data Size</source>
        <translation>封面数据大小</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
</context>
<context>
    <name>HRFContainedSubPath</name>
    <message>
        <source>The name “%1” is too long.</source>
        <translation>名称“%1”太长。</translation>
    </message>
    <message>
        <source>“%1” is no name for a file.</source>
        <translation>“%1”不能用作文件名。</translation>
    </message>
    <message>
        <source>The path “%1” leads out of the folder.</source>
        <translation>路径“%1”超出了该文件夹。</translation>
    </message>
</context>
<context>
    <name>HRFDataFolder</name>
    <message>
        <source>The folder is in use by another program.</source>
        <translation>该文件夹正被另一个程序使用。</translation>
    </message>
    <message>
        <source>The folder cannot be used.</source>
        <translation>无法使用该文件夹。</translation>
    </message>
</context>
<context>
    <name>HRFDebugMenu</name>
    <message>
        <source>Drop Databases</source>
        <translation>丢弃数据库</translation>
    </message>
    <message>
        <source>Drop Attributes</source>
        <translation>丢弃属性</translation>
    </message>
    <message>
        <source>Reset Defaults</source>
        <translation>重置设置</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>全部重置</translation>
    </message>
    <message>
        <source>&amp;Debug</source>
        <translation>调试(&amp;D)</translation>
    </message>
    <message>
        <source>Drop View Configurations</source>
        <translation>丢弃视图配置</translation>
    </message>
</context>
<context>
    <name>HRFDocumentController</name>
    <message>
        <source>Writing Metadata…</source>
        <translation>正在写入元数据…</translation>
    </message>
    <message>
        <source>%1 items total</source>
        <translation>共 %1 项</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the remaining operations?</source>
        <translation>确定要取消剩余的操作吗？</translation>
    </message>
    <message>
        <source>Lirra is currently saving tags. If you cancel now, changes will be lost.</source>
        <translation>Lirra 正在保存标签。如果现在取消，更改将会丢失。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>HRFDotPrefixCheck</name>
    <message>
        <source>Remove Dot</source>
        <translation>移除点号</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Some item names begin with a dot “.”, these names are reserved for the system.</source>
        <translation>有些名称以点号“.”开头，这类名称是为系统保留的。</translation>
    </message>
    <message>
        <source>Leaving the dot prefixes will cause the items to become hidden from the Finder.</source>
        <translation>如果保留开头的点号，这些项目将在文件管理器中隐藏。</translation>
    </message>
</context>
<context>
    <name>HRFErrorSolver</name>
    <message>
        <source>Apply to All</source>
        <translation>应用于全部</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>HRFFieldText</name>
    <message>
        <source>Enter a date as YYYY-MM-DD, a month as YYYY-MM, or a year.</source>
        <translation>请输入日期（YYYY-MM-DD）、月份（YYYY-MM）或年份。</translation>
    </message>
    <message>
        <source>Enter a name other than “.” and “..”.</source>
        <translation>请输入“.”和“..”以外的名称。</translation>
    </message>
</context>
<context>
    <name>HRFFileByteStore</name>
    <message>
        <source>Another program changed the file meanwhile</source>
        <translation>其他程序在此期间更改了该文件</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>它不是普通文件</translation>
    </message>
</context>
<context>
    <name>HRFFileImportOperation</name>
    <message>
        <source>The file “%1” could not be found</source>
        <translation>找不到文件“%1”</translation>
    </message>
</context>
<context>
    <name>HRFFileManager</name>
    <message>
        <source>An item named “%1” already exists in this location.</source>
        <translation>此位置已有名为“%1”的项目。</translation>
    </message>
    <message>
        <source>Do you want to replace it with the one you’re moving?</source>
        <translation>要用正在移动的项目替换它吗？</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>两者都保留</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>应用于全部</translation>
    </message>
    <message>
        <source>“%1” could not be copied to “%2”</source>
        <translation>无法将“%1”拷贝到“%2”</translation>
    </message>
    <message>
        <source>“%1” could not be moved to “%2”</source>
        <translation>无法将“%1”移动到“%2”</translation>
    </message>
    <message>
        <source>“%1” could not be copied to the folder “%2”</source>
        <translation>无法将“%1”拷贝到文件夹“%2”</translation>
    </message>
    <message>
        <source>“%1” could not be moved to the folder “%2”</source>
        <translation>无法将“%1”移动到文件夹“%2”</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名称太长。</translation>
    </message>
    <message>
        <source>Another program uses or changes the item.</source>
        <translation>其他程序正在使用或更改该项目。</translation>
    </message>
</context>
<context>
    <name>HRFFileOperation</name>
    <message>
        <source>The file “%1” could not be found</source>
        <translation>找不到文件“%1”</translation>
    </message>
    <message>
        <source>It was deleted, replaced, or moved to another place.</source>
        <translation>它已被删除、替换或移动到别处。</translation>
    </message>
    <message>
        <source>Could not process file: “%1”</source>
        <translation>无法处理文件：“%1”</translation>
    </message>
</context>
<context>
    <name>HRFFileOperationCC</name>
    <message>
        <source>Failures have been selected. Try editing the Pattern, then proceed again.</source>
        <translation>已选中失败的文件。请修改模式后重试。</translation>
    </message>
    <message>
        <source>Some files failed renaming because their new filenames were null</source>
        <translation>某些文件因新名称为空而未能重命名</translation>
    </message>
    <message>
        <source>Some of the new filepaths were invalid.</source>
        <translation>某些新路径无效。</translation>
    </message>
    <message>
        <source>Edit Pattern</source>
        <translation>编辑模式</translation>
    </message>
</context>
<context>
    <name>HRFFilePlan</name>
    <message>
        <source>There is no %1</source>
        <translation>没有%1</translation>
    </message>
    <message>
        <source>The pattern makes no name for the file “%1”</source>
        <translation>该模式无法为文件“%1”生成名称</translation>
    </message>
    <message>
        <source>The pattern makes no folder for the file “%1”</source>
        <translation>该模式无法为文件“%1”生成文件夹</translation>
    </message>
    <message>
        <source>A value is missing or empty.</source>
        <translation>有的值缺失或为空。</translation>
    </message>
</context>
<context>
    <name>HRFFileWalker</name>
    <message>
        <source>The folder has no audio files</source>
        <translation>该文件夹中没有音频文件</translation>
    </message>
</context>
<context>
    <name>HRFFilterMenu</name>
    <message>
        <source>(no value)</source>
        <translation>（无值）</translation>
    </message>
    <message>
        <source>Filter by “%1”</source>
        <translation>按“%1”筛选</translation>
    </message>
    <message>
        <source>Search values</source>
        <translation>搜索值</translation>
    </message>
    <message>
        <source>Press Return to show nothing but what is found</source>
        <translation>按回车键只显示找到的内容</translation>
    </message>
    <message>
        <source>All values</source>
        <translation>所有值</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
    <message>
        <source>%1 of %2 values are shown</source>
        <translation>显示 %1 个值，共 %2 个</translation>
    </message>
    <message>
        <source>All found values</source>
        <translation>所有找到的值</translation>
    </message>
</context>
<context>
    <name>HRFFrameDescriptions</name>
    <message>
        <source>Title of the album on which the recording first appeared</source>
        <translation>录音首次出现的专辑标题</translation>
    </message>
    <message>
        <source>Year of the recording</source>
        <translation>录音年份</translation>
    </message>
    <message>
        <source>Lead performer of the track</source>
        <translation>音轨的主要表演者</translation>
    </message>
    <message>
        <source>Musical key in which the track starts</source>
        <translation>音轨开始时的调性</translation>
    </message>
    <message>
        <source>Performer of the album as a whole</source>
        <translation>整张专辑的表演者</translation>
    </message>
    <message>
        <source>Name of the internet radio station</source>
        <translation>网络电台的名称</translation>
    </message>
    <message>
        <source>People involved in the production and their functions</source>
        <translation>参与制作的人员及其职能</translation>
    </message>
    <message>
        <source>Album artist as used for sorting</source>
        <translation>用于排序的专辑艺术家</translation>
    </message>
    <message>
        <source>Person or program that encoded the file</source>
        <translation>对文件进行编码的人或程序</translation>
    </message>
    <message>
        <source>Kind of audio in the file</source>
        <translation>文件中音频的类型</translation>
    </message>
    <message>
        <source>Genre of the track</source>
        <translation>音轨的流派</translation>
    </message>
    <message>
        <source>Date of the recording</source>
        <translation>录音日期</translation>
    </message>
    <message>
        <source>Number of discs in the set</source>
        <translation>套装中的光盘数量</translation>
    </message>
    <message>
        <source>Title as used for sorting</source>
        <translation>用于排序的标题</translation>
    </message>
    <message>
        <source>Performer of the original recording</source>
        <translation>原始录音的表演者</translation>
    </message>
    <message>
        <source>Rating from 0 to 255, as stored in the file</source>
        <translation>评分，0 到 255，与文件中存储的一致</translation>
    </message>
    <message>
        <source>Whether the track belongs to a compilation</source>
        <translation>音轨是否属于合辑</translation>
    </message>
    <message>
        <source>Copyright holder and year</source>
        <translation>版权所有者和年份</translation>
    </message>
    <message>
        <source>Title of the track</source>
        <translation>音轨的标题</translation>
    </message>
    <message>
        <source>Number of tracks on the disc</source>
        <translation>光盘上的音轨数量</translation>
    </message>
    <message>
        <source>Position of the track on the disc</source>
        <translation>音轨在光盘上的位置</translation>
    </message>
    <message>
        <source>Composer as used for sorting</source>
        <translation>用于排序的作曲者</translation>
    </message>
    <message>
        <source>Title of the album</source>
        <translation>专辑的标题</translation>
    </message>
    <message>
        <source>Label or publisher</source>
        <translation>唱片公司或发行商</translation>
    </message>
    <message>
        <source>Program and settings used for encoding</source>
        <translation>编码所用的程序和设置</translation>
    </message>
    <message>
        <source>Length of the audio in milliseconds</source>
        <translation>音频长度（毫秒）</translation>
    </message>
    <message>
        <source>Owner of the internet radio station</source>
        <translation>网络电台的所有者</translation>
    </message>
    <message>
        <source>Identifier of the podcast episode</source>
        <translation>播客单集的标识</translation>
    </message>
    <message>
        <source>Mood of the track</source>
        <translation>音轨的情绪</translation>
    </message>
    <message>
        <source>Name of the movement</source>
        <translation>乐章的名称</translation>
    </message>
    <message>
        <source>Position of the movement in the work</source>
        <translation>乐章在作品中的位置</translation>
    </message>
    <message>
        <source>Number of movements in the work</source>
        <translation>作品的乐章数量</translation>
    </message>
    <message>
        <source>Address of the podcast feed</source>
        <translation>播客订阅源的网址</translation>
    </message>
    <message>
        <source>Artist as used for sorting</source>
        <translation>用于排序的艺术家</translation>
    </message>
    <message>
        <source>Position of the disc in the set</source>
        <translation>光盘在套装中的位置</translation>
    </message>
    <message>
        <source>Conductor</source>
        <translation>指挥</translation>
    </message>
    <message>
        <source>Writer of the lyrics</source>
        <translation>歌词作者</translation>
    </message>
    <message>
        <source>Description of the podcast episode</source>
        <translation>播客单集的说明</translation>
    </message>
    <message>
        <source>Free comment</source>
        <translation>任意注释</translation>
    </message>
    <message>
        <source>Preferred name of the file</source>
        <translation>文件的首选名称</translation>
    </message>
    <message>
        <source>Date of the first release</source>
        <translation>首次发行的日期</translation>
    </message>
    <message>
        <source>When the file was tagged</source>
        <translation>文件写入标签的时间</translation>
    </message>
    <message>
        <source>When the audio was encoded</source>
        <translation>音频编码的时间</translation>
    </message>
    <message>
        <source>Lyrics or transcription</source>
        <translation>歌词或文字记录</translation>
    </message>
    <message>
        <source>Composer</source>
        <translation>作曲</translation>
    </message>
    <message>
        <source>Picture, normally the front cover</source>
        <translation>图片，通常是封面</translation>
    </message>
    <message>
        <source>Subtitle of the disc within the set</source>
        <translation>套装中该光盘的副标题</translation>
    </message>
    <message>
        <source>Group of tracks to which the track belongs</source>
        <translation>音轨所属的音轨组</translation>
    </message>
    <message>
        <source>Owner or licensee of the file</source>
        <translation>文件的所有者或被许可人</translation>
    </message>
    <message>
        <source>Beats per minute</source>
        <translation>每分钟的节拍数</translation>
    </message>
    <message>
        <source>Person who remixed or arranged the track</source>
        <translation>对音轨进行混音或改编的人</translation>
    </message>
    <message>
        <source>Album title as used for sorting</source>
        <translation>用于排序的专辑标题</translation>
    </message>
    <message>
        <source>Medium from which the audio comes</source>
        <translation>音频来源的介质</translation>
    </message>
    <message>
        <source>When this release appeared</source>
        <translation>此版本发行的时间</translation>
    </message>
    <message>
        <source>International Standard Recording Code</source>
        <translation>国际标准录音代码</translation>
    </message>
    <message>
        <source>Musicians and their instruments</source>
        <translation>演奏人员及其乐器</translation>
    </message>
    <message>
        <source>Whether the file is a podcast episode</source>
        <translation>文件是否为播客单集</translation>
    </message>
    <message>
        <source>Production copyright notice</source>
        <translation>制作版权声明</translation>
    </message>
    <message>
        <source>Language of the lyrics, as an ISO 639-2 code</source>
        <translation>歌词的语言，以 ISO 639-2 代码表示</translation>
    </message>
    <message>
        <source>Subtitle or refinement of the title</source>
        <translation>副标题或对标题的补充</translation>
    </message>
    <message>
        <source>Milliseconds of silence before the track in a playlist</source>
        <translation>播放列表中该音轨之前的静音毫秒数</translation>
    </message>
    <message>
        <source>Writer of the original lyrics</source>
        <translation>原歌词的作者</translation>
    </message>
    <message>
        <source>Web address that belongs to the track</source>
        <translation>与音轨相关的网址</translation>
    </message>
    <message>
        <source>Name of the work to which the track belongs</source>
        <translation>音轨所属作品的名称</translation>
    </message>
</context>
<context>
    <name>HRFFrameFactory</name>
    <message>
        <source>Its ID3v2 tag has encrypted frames.</source>
        <translation>文件的 ID3v2 标签含有加密的帧。</translation>
    </message>
    <message>
        <source>Its ID3v2.2 tag has frames that later versions lack.</source>
        <translation>文件的 ID3v2.2 标签含有后续版本没有的帧。</translation>
    </message>
    <message>
        <source>Its ID3v2 tag is damaged; a part of it would be lost.</source>
        <translation>文件的 ID3v2 标签已损坏；其中一部分会丢失。</translation>
    </message>
</context>
<context>
    <name>HRFImportNotice</name>
    <message>
        <source>Show what was not added, and why</source>
        <translation>显示未添加的项目及原因</translation>
    </message>
    <message>
        <source>1 item was not added</source>
        <translation>1 个项目未添加</translation>
    </message>
    <message>
        <source>%1 items were not added</source>
        <translation>%1 个项目未添加</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Show Files</source>
        <translation>显示文件</translation>
    </message>
</context>
<context>
    <name>HRFListColumn</name>
    <message>
        <source>Artwork</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Change Extension</source>
        <translation>更改扩展名</translation>
    </message>
    <message>
        <source>Edit %1</source>
        <translation>编辑%1</translation>
    </message>
</context>
<context>
    <name>HRFListCommands</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Tags</source>
        <translation>标签(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New List</source>
        <translation>新建列表(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>添加文件(&amp;A)…</translation>
    </message>
    <message>
        <source>Add audio files to the list</source>
        <translation>将音频文件添加到列表</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>添加文件夹(&amp;O)…</translation>
    </message>
    <message>
        <source>Add all audio files of a folder</source>
        <translation>添加文件夹中的所有音频文件</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>在文件管理器中显示(&amp;S)</translation>
    </message>
    <message>
        <source>Show the selected files in the file manager</source>
        <translation>在文件管理器中显示所选文件</translation>
    </message>
    <message>
        <source>&amp;Close List</source>
        <translation>关闭列表(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>拷贝路径(&amp;P)</translation>
    </message>
    <message>
        <source>Copy the paths of the selected files</source>
        <translation>拷贝所选文件的路径</translation>
    </message>
    <message>
        <source>Re&amp;move from List</source>
        <translation>从列表中移除(&amp;M)</translation>
    </message>
    <message>
        <source>Take the selected files out of the list; the files themselves stay</source>
        <translation>将所选文件移出列表；文件本身会保留</translation>
    </message>
    <message>
        <source>C&amp;lear List</source>
        <translation>清空列表(&amp;L)</translation>
    </message>
    <message>
        <source>Take all shown files out of the list; the files themselves stay</source>
        <translation>将所有显示的文件移出列表；文件本身会保留</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>筛选(&amp;F)</translation>
    </message>
    <message>
        <source>Filter by &amp;Column…</source>
        <translation>按列筛选(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose which values of the current column are shown</source>
        <translation>选择显示当前列的哪些值</translation>
    </message>
    <message>
        <source>Sho&amp;w All Files</source>
        <translation>显示所有文件(&amp;W)</translation>
    </message>
    <message>
        <source>Take all filters away</source>
        <translation>取消所有筛选</translation>
    </message>
    <message>
        <source>Pr&amp;eferences…</source>
        <translation>首选项(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Edit Value</source>
        <translation>编辑值(&amp;E)</translation>
    </message>
    <message>
        <source>Edit the current cell</source>
        <translation>编辑当前单元格</translation>
    </message>
    <message>
        <source>&amp;Strip Tags…</source>
        <translation>清除标签(&amp;S)…</translation>
    </message>
    <message>
        <source>Remove all metadata from the selected files</source>
        <translation>从所选文件中移除所有元数据</translation>
    </message>
    <message>
        <source>&amp;Higher Rows</source>
        <translation>增大行高(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Lower Rows</source>
        <translation>减小行高(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Usual Rows</source>
        <translation>默认行高(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>全屏(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;About Lirra</source>
        <translation>关于 Lirra(&amp;A)</translation>
    </message>
    <message>
        <source>Add &amp;Recent Folder</source>
        <translation>添加最近使用的文件夹(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>列(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>排序方式(&amp;S)</translation>
    </message>
    <message>
        <source>Edit in Si&amp;debar</source>
        <translation>在侧边栏中编辑(&amp;D)</translation>
    </message>
    <message>
        <source>Go to the first field of the sidebar</source>
        <translation>转到侧边栏的第一个字段</translation>
    </message>
    <message>
        <source>S&amp;idebar</source>
        <translation>侧边栏(&amp;I)</translation>
    </message>
    <message>
        <source>Show or hide the sidebar</source>
        <translation>显示或隐藏侧边栏</translation>
    </message>
    <message>
        <source>Co&amp;nfigure Sidebar…</source>
        <translation>配置侧边栏(&amp;N)…</translation>
    </message>
    <message>
        <source>Choose which fields the sidebar shows</source>
        <translation>选择侧边栏显示的字段</translation>
    </message>
    <message>
        <source>Move Column Lef&amp;t</source>
        <translation>左移列(&amp;T)</translation>
    </message>
    <message>
        <source>Move the column of the current cell</source>
        <translation>移动当前单元格所在的列</translation>
    </message>
    <message>
        <source>Move Column &amp;Right</source>
        <translation>右移列(&amp;R)</translation>
    </message>
    <message>
        <source>Fit Column &amp;Width</source>
        <translation>调整列宽以适应内容(&amp;W)</translation>
    </message>
    <message>
        <source>Make the column of the current cell as wide as what stands in it</source>
        <translation>使当前单元格所在的列与其内容同宽</translation>
    </message>
    <message>
        <source>&amp;Undo “%1”</source>
        <translation>撤销“%1”(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo “%1”</source>
        <translation>重做“%1”(&amp;R)</translation>
    </message>
</context>
<context>
    <name>HRFListHeader</name>
    <message>
        <source>Column titles</source>
        <translation>列标题</translation>
    </message>
    <message>
        <source>Restore Default Columns</source>
        <translation>恢复默认列</translation>
    </message>
    <message>
        <source>Order of Adding</source>
        <translation>添加顺序</translation>
    </message>
    <message>
        <source>Filter by “%1”…</source>
        <translation>按“%1”筛选…</translation>
    </message>
    <message>
        <source>Hide “%1”</source>
        <translation>隐藏“%1”</translation>
    </message>
    <message>
        <source>&amp;Then By</source>
        <translation>然后按(&amp;T)</translation>
    </message>
</context>
<context>
    <name>HRFListView</name>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>HRFListWindow</name>
    <message>
        <source>Add Folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>About Lirra</source>
        <translation>关于 Lirra</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Lirra %1&lt;/h3&gt;&lt;p&gt;Edits the tags of audio files.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Lirra %1&lt;/h3&gt;&lt;p&gt;编辑音频文件的标签。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Lirra</source>
        <translation>Lirra</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Show the files that have these words in a shown column</source>
        <translation>显示在可见列中含有这些词的文件</translation>
    </message>
    <message>
        <source>No matching files</source>
        <translation>没有匹配的文件</translation>
    </message>
    <message>
        <source>Change the filter to see more files.</source>
        <translation>更改筛选条件以查看更多文件。</translation>
    </message>
    <message>
        <source>Drop files or folders here</source>
        <translation>将文件或文件夹拖放到此处</translation>
    </message>
    <message>
        <source>or choose Add Files (%1) or Add Folder (%2)</source>
        <translation>或选择“添加文件”(%1) 或“添加文件夹”(%2)</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>添加文件</translation>
    </message>
    <message>
        <source>Audio Files (%1)</source>
        <translation>音频文件 (%1)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>HRFMetaFileManager</name>
    <message>
        <source>Reading Metadata…</source>
        <translation>正在读取元数据…</translation>
    </message>
    <message>
        <source>Files couldn&apos;t be opened because of core data related issues.</source>
        <translation>由于数据存储问题，无法打开文件。</translation>
    </message>
    <message>
        <source>Could not add %1 invalid file(s).</source>
        <translation>无法添加 %1 个无效文件。</translation>
    </message>
    <message>
        <source>You may want to try re-encoding these audio files.</source>
        <translation>您可以尝试重新编码这些音频文件。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Show Files</source>
        <translation>显示文件</translation>
    </message>
    <message>
        <source>Writing Metadata…</source>
        <translation>正在写入元数据…</translation>
    </message>
    <message>
        <source>The operation was cancelled due to unresolved errors.</source>
        <translation>由于错误未解决，操作已取消。</translation>
    </message>
    <message>
        <source>The file “%1” cannot be called “%2”</source>
        <translation>文件“%1”不能命名为“%2”</translation>
    </message>
</context>
<context>
    <name>HRFPattern</name>
    <message>
        <source>Unknown %1</source>
        <translation>未知%1</translation>
    </message>
</context>
<context>
    <name>HRFPatternItem</name>
    <message>
        <source>Wildcard</source>
        <translation>通配符</translation>
    </message>
    <message>
        <source>＊</source>
        <translation>＊</translation>
    </message>
    <message>
        <source>Any Character</source>
        <translation>任意字符</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>Any Word</source>
        <translation>任意单词</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>单词</translation>
    </message>
    <message>
        <source>White Space</source>
        <translation>空白</translation>
    </message>
    <message>
        <source> </source>
        <translation> </translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
</context>
<context>
    <name>HRFPatternMatcher</name>
    <message>
        <source>The regular expression failed: %1</source>
        <translation>正则表达式出错：%1</translation>
    </message>
    <message>
        <source>Regular Expression is invalid</source>
        <translation>正则表达式无效</translation>
    </message>
    <message>
        <source>Make sure that the supplied pattern has a valid Regex syntax, or toggle Regex matching off.</source>
        <translation>请确保所给模式的正则表达式语法有效，或关闭正则表达式匹配。</translation>
    </message>
    <message>
        <source>Matching the pattern takes too long</source>
        <translation>模式匹配耗时过长</translation>
    </message>
    <message>
        <source>Try a pattern with fewer repetitions.</source>
        <translation>请尝试重复较少的模式。</translation>
    </message>
</context>
<context>
    <name>HRFPendingWork</name>
    <message>
        <source>Writing Metadata</source>
        <translation>正在写入元数据</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Writing: %1 of %2</source>
        <translation>正在写入：%1/%2</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the remaining operations?</source>
        <translation>确定要取消剩余的操作吗？</translation>
    </message>
    <message>
        <source>Files that are not written yet keep their tags as they are, though the list shows the new ones.</source>
        <translation>尚未写入的文件将保留原有标签，但列表中显示的是新标签。</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>HRFPicture</name>
    <message>
        <source>“%1” is no picture that can be used.</source>
        <translation>“%1”不是可用的图片。</translation>
    </message>
</context>
<context>
    <name>HRFPlaylist</name>
    <message>
        <source>Remove all metadata from “%1” ?</source>
        <translation>要从“%1”中移除所有元数据吗？</translation>
    </message>
    <message>
        <source>Remove all metadata from %1 files ?</source>
        <translation>要从 %1 个文件中移除所有元数据吗？</translation>
    </message>
    <message>
        <source>This action cannot be undone.</source>
        <translation>此操作无法撤销。</translation>
    </message>
    <message>
        <source>Remove all metadata</source>
        <translation>移除所有元数据</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Strip Tags</source>
        <translation>清除标签</translation>
    </message>
    <message>
        <source>Move Files</source>
        <translation>移动文件</translation>
    </message>
</context>
<context>
    <name>HRFPreferences</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Very high</source>
        <translation>很高</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>ID3v2.4, UTF-8</source>
        <translation>ID3v2.4，UTF-8</translation>
    </message>
    <message>
        <source>ID3v2.4, UTF-16</source>
        <translation>ID3v2.4，UTF-16</translation>
    </message>
    <message>
        <source>ID3v2.4, ISO Latin 1</source>
        <translation>ID3v2.4，ISO Latin 1</translation>
    </message>
    <message>
        <source>ID3v2.3, UTF-16</source>
        <translation>ID3v2.3，UTF-16</translation>
    </message>
    <message>
        <source>ID3v2.3, ISO Latin 1</source>
        <translation>ID3v2.3，ISO Latin 1</translation>
    </message>
    <message>
        <source>In a picture block</source>
        <translation>在图片块中</translation>
    </message>
    <message>
        <source>In the Vorbis comment</source>
        <translation>在 Vorbis 注释中</translation>
    </message>
    <message>
        <source>In both</source>
        <translation>两处都有</translation>
    </message>
    <message>
        <source>“Unknown” and the name of the tag</source>
        <translation>“未知”加标签名称</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>无内容</translation>
    </message>
    <message>
        <source>No name: the file is left out</source>
        <translation>不生成名称：略过该文件</translation>
    </message>
    <message>
        <source>Adding files</source>
        <translation>添加文件</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>维护</translation>
    </message>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>ID3v2 tags</source>
        <translation>ID3v2 标签</translation>
    </message>
    <message>
        <source>Tags in MP3 files</source>
        <translation>MP3 文件中的标签</translation>
    </message>
    <message>
        <source>Tags in WAV files</source>
        <translation>WAV 文件中的标签</translation>
    </message>
    <message>
        <source>FLAC files</source>
        <translation>FLAC 文件</translation>
    </message>
    <message>
        <source>Names made from tags</source>
        <translation>由标签生成的名称</translation>
    </message>
    <message>
        <source>Moving files into folders</source>
        <translation>将文件移动到文件夹</translation>
    </message>
    <message>
        <source>Select added files</source>
        <translation>选中添加的文件</translation>
    </message>
    <message>
        <source>Files are selected in the list as soon as they have been added.</source>
        <translation>文件添加后立即在列表中选中。</translation>
    </message>
    <message>
        <source>Folder to open at the start</source>
        <translation>启动时打开的文件夹</translation>
    </message>
    <message>
        <source>Its files are added to the list when Lirra is started without files.</source>
        <translation>启动 Lirra 时若未指定文件，则将此文件夹中的文件添加到列表。</translation>
    </message>
    <message>
        <source>Show the Debug menu</source>
        <translation>显示“调试”菜单</translation>
    </message>
    <message>
        <source>It has commands that throw away settings and stored data; no audio file is touched.</source>
        <translation>其中的命令会丢弃设置和存储的数据；不会触及任何音频文件。</translation>
    </message>
    <message>
        <source>Height of rows</source>
        <translation>行高</translation>
    </message>
    <message>
        <source>Artwork is shown as large as the rows are high.</source>
        <translation>封面的显示大小与行高一致。</translation>
    </message>
    <message>
        <source>Version and text encoding</source>
        <translation>版本和文本编码</translation>
    </message>
    <message>
        <source>Old players know only ID3v2.3; AIFF and DSD files always get ID3v2.4.</source>
        <translation>旧播放器只支持 ID3v2.3；AIFF 和 DSD 文件始终使用 ID3v2.4。</translation>
    </message>
    <message>
        <source>Write grouping and work as iTunes does</source>
        <translation>以 iTunes 的方式写入分组和作品</translation>
    </message>
    <message>
        <source>Grouping is kept in the frame GRP1 and work in TIT1, instead of TIT1 and a frame of its own.</source>
        <translation>分组写入帧 GRP1，作品写入 TIT1，而不是分别写入 TIT1 和单独的帧。</translation>
    </message>
    <message>
        <source>ID3v2</source>
        <translation>ID3v2</translation>
    </message>
    <message>
        <source>The tag that every player reads.</source>
        <translation>所有播放器都能读取的标签。</translation>
    </message>
    <message>
        <source>ID3v1</source>
        <translation>ID3v1</translation>
    </message>
    <message>
        <source>Seven short fields at the end of the file, for very old players.</source>
        <translation>文件末尾的七个短字段，供很旧的播放器使用。</translation>
    </message>
    <message>
        <source>APE</source>
        <translation>APE</translation>
    </message>
    <message>
        <source>For some other programs; a kind of tag that is off is removed when a file is saved.</source>
        <translation>供某些其他程序使用；保存文件时会移除未启用的标签类型。</translation>
    </message>
    <message>
        <source>Holds all tags and the artwork.</source>
        <translation>包含所有标签和封面。</translation>
    </message>
    <message>
        <source>INFO</source>
        <translation>INFO</translation>
    </message>
    <message>
        <source>Holds the most common tags; a kind of tag that is off is removed when a file is saved.</source>
        <translation>包含最常用的标签；保存文件时会移除未启用的标签类型。</translation>
    </message>
    <message>
        <source>Artwork is kept</source>
        <translation>封面存储位置</translation>
    </message>
    <message>
        <source>Players look for it in a picture block; a few know only the comment.</source>
        <translation>播放器会在图片块中查找封面；少数只识别注释。</translation>
    </message>
    <message>
        <source>In place of a missing tag</source>
        <translation>标签缺失时填入</translation>
    </message>
    <message>
        <source>What a pattern puts where a file has no value for one of its tags.</source>
        <translation>文件没有模式所用标签的值时，模式所填入的内容。</translation>
    </message>
    <message>
        <source>Leading zeros</source>
        <translation>前导零</translation>
    </message>
    <message>
        <source>Track and disc numbers get leading zeros, so that names sort like numbers.</source>
        <translation>音轨号和光盘号带前导零，使名称按数字顺序排序。</translation>
    </message>
    <message>
        <source>Names for Windows</source>
        <translation>适用于 Windows 的名称</translation>
    </message>
    <message>
        <source>Characters that Windows file systems forbid are left out of names.</source>
        <translation>名称中略去 Windows 文件系统禁止的字符。</translation>
    </message>
    <message>
        <source>Names for network shares</source>
        <translation>适用于网络共享的名称</translation>
    </message>
    <message>
        <source>Characters that SMB shares forbid are left out of names.</source>
        <translation>名称中略去 SMB 共享禁止的字符。</translation>
    </message>
    <message>
        <source>Copy instead of move</source>
        <translation>拷贝而不移动</translation>
    </message>
    <message>
        <source>The files also stay where they are.</source>
        <translation>文件同时保留在原位置。</translation>
    </message>
    <message>
        <source>Take other files along</source>
        <translation>一并移动其他文件</translation>
    </message>
    <message>
        <source>Covers, booklets and the like follow when no audio file is left beside them.</source>
        <translation>当旁边不再有音频文件时，封面、小册子等会一同移动。</translation>
    </message>
    <message>
        <source>Remove empty folders</source>
        <translation>移除空文件夹</translation>
    </message>
    <message>
        <source>Folders in which nothing is left are moved to the Trash.</source>
        <translation>不再含有任何内容的文件夹会移到回收站。</translation>
    </message>
    <message>
        <source>Ask before removing folders</source>
        <translation>移除文件夹前询问</translation>
    </message>
    <message>
        <source>The empty folders are listed before they are removed.</source>
        <translation>移除前会列出这些空文件夹。</translation>
    </message>
    <message>
        <source>Show the moved files</source>
        <translation>显示移动后的文件</translation>
    </message>
    <message>
        <source>They are shown in the file manager afterwards.</source>
        <translation>之后在文件管理器中显示它们。</translation>
    </message>
    <message>
        <source>There is no folder with this path.</source>
        <translation>此路径没有对应的文件夹。</translation>
    </message>
</context>
<context>
    <name>HRFPreferencesWindow</name>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Tagging</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Conversions</source>
        <translation>转换</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Panes</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>Take back every choice of this pane</source>
        <translation>撤回此面板中的所有选择</translation>
    </message>
</context>
<context>
    <name>HRFPrivateContext</name>
    <message>
        <source>The list is closed.</source>
        <translation>列表已关闭。</translation>
    </message>
</context>
<context>
    <name>HRFProgress</name>
    <message>
        <source>%1 File(s) Processed.</source>
        <translation>%1 个文件已处理。</translation>
    </message>
    <message>
        <source>%1 of</source>
        <translation>%1 /</translation>
    </message>
</context>
<context>
    <name>HRFProgressDialog</name>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>正在取消…</translation>
    </message>
</context>
<context>
    <name>HRFProgressWindowController</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Processing…</source>
        <translation>正在处理…</translation>
    </message>
</context>
<context>
    <name>HRFSidebar</name>
    <message>
        <source>Sidebar</source>
        <translation>侧边栏</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>未选择文件</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 个文件</translation>
    </message>
</context>
<context>
    <name>HRFSidebarDialog</name>
    <message>
        <source>Groups</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Fields of the Group</source>
        <translation>分组中的字段</translation>
    </message>
    <message>
        <source>Configure Sidebar</source>
        <translation>配置侧边栏</translation>
    </message>
    <message>
        <source>Drag groups to order them, double-click one to name it</source>
        <translation>拖动分组以排序，双击以命名</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Move Group Up</source>
        <translation>上移分组</translation>
    </message>
    <message>
        <source>Move Group Down</source>
        <translation>下移分组</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>分组(&amp;G)</translation>
    </message>
    <message>
        <source>Drag fields to order them</source>
        <translation>拖动字段以排序</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Move Field Up</source>
        <translation>上移字段</translation>
    </message>
    <message>
        <source>Move Field Down</source>
        <translation>下移字段</translation>
    </message>
    <message>
        <source>&amp;Fields of the Group</source>
        <translation>分组中的字段(&amp;F)</translation>
    </message>
    <message>
        <source>Other Fields</source>
        <translation>其他字段</translation>
    </message>
    <message>
        <source>Find Field</source>
        <translation>查找字段</translation>
    </message>
    <message>
        <source>&amp;Add to Group</source>
        <translation>添加到分组(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Other Fields</source>
        <translation>其他字段(&amp;O)</translation>
    </message>
    <message>
        <source>New Group</source>
        <translation>新分组</translation>
    </message>
    <message>
        <source>Name of the Group</source>
        <translation>组名称</translation>
    </message>
    <message>
        <source>A group needs a name.</source>
        <translation>组必须有名称。</translation>
    </message>
</context>
<context>
    <name>HRFSidebarField</name>
    <message>
        <source>Multiple values</source>
        <translation>多个值</translation>
    </message>
</context>
<context>
    <name>HRFSidebarGroup</name>
    <message>
        <source>Hide the fields of this group</source>
        <translation>隐藏此分组的字段</translation>
    </message>
    <message>
        <source>Show the fields of this group</source>
        <translation>显示此分组的字段</translation>
    </message>
    <message>
        <source>of</source>
        <translation>/</translation>
    </message>
</context>
<context>
    <name>HRFSidebarTextField</name>
    <message>
        <source>YYYY-MM-DD</source>
        <translation>YYYY-MM-DD</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>多个</translation>
    </message>
    <message>
        <source>Remove Value</source>
        <translation>移除值</translation>
    </message>
</context>
<context>
    <name>HRFStarsEditor</name>
    <message>
        <source>Rating</source>
        <translation>评分</translation>
    </message>
    <message>
        <source>1 star</source>
        <translation>1 星</translation>
    </message>
    <message>
        <source>%1 stars</source>
        <translation>%1 星</translation>
    </message>
</context>
<context>
    <name>HRFStatusLine</name>
    <message>
        <source>No file matches the filter</source>
        <translation>没有文件符合筛选条件</translation>
    </message>
    <message>
        <source>No files</source>
        <translation>没有文件</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 个文件</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 个文件</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>已选中 %1 / %2</translation>
    </message>
</context>
<context>
    <name>HRFSystemFile</name>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Change Extension</source>
        <translation>更改扩展名</translation>
    </message>
</context>
<context>
    <name>HRFTagEngine</name>
    <message>
        <source>AIFF audio</source>
        <translation>AIFF 音频</translation>
    </message>
    <message>
        <source>DSDIFF audio</source>
        <translation>DSDIFF 音频</translation>
    </message>
    <message>
        <source>DSF audio</source>
        <translation>DSF 音频</translation>
    </message>
    <message>
        <source>a FLAC stream</source>
        <translation>FLAC 流</translation>
    </message>
    <message>
        <source>No engine can open the file “%1”</source>
        <translation>无法打开文件“%1”</translation>
    </message>
    <message>
        <source>The kind of file is not supported.</source>
        <translation>不支持此类文件。</translation>
    </message>
    <message>
        <source>The file “%1” could not be read</source>
        <translation>无法读取文件“%1”</translation>
    </message>
    <message>
        <source>The file cannot hold this value of “%1”</source>
        <translation>该文件无法容纳“%1”的此值</translation>
    </message>
    <message>
        <source>No file was given</source>
        <translation>未指定文件</translation>
    </message>
    <message>
        <source>It does not contain %1</source>
        <translation>其中没有%1</translation>
    </message>
    <message>
        <source>artwork</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>Lirra failed to save the file “%1”</source>
        <translation>Lirra 未能保存文件“%1”</translation>
    </message>
    <message>
        <source>Saving it has failed before.</source>
        <translation>先前保存它时已失败。</translation>
    </message>
    <message>
        <source>The file would not be readable afterwards.</source>
        <translation>保存后文件将无法读取。</translation>
    </message>
    <message>
        <source>an MP4 container</source>
        <translation>MP4 容器</translation>
    </message>
    <message>
        <source>MPEG audio or a tag</source>
        <translation>MPEG 音频或标签</translation>
    </message>
    <message>
        <source>an Opus stream</source>
        <translation>Opus 流</translation>
    </message>
    <message>
        <source>a Speex stream with a tag</source>
        <translation>带标签的 Speex 流</translation>
    </message>
    <message>
        <source>an Ogg Vorbis or Ogg FLAC stream</source>
        <translation>Ogg Vorbis 或 Ogg FLAC 流</translation>
    </message>
    <message>
        <source>WAVE audio</source>
        <translation>WAVE 音频</translation>
    </message>
</context>
<context>
    <name>HRFTagOperationCC</name>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Failures have been selected. Try editing the Pattern to better match the source, then proceed again.</source>
        <translation>已选中失败的文件。请修改模式以更好地匹配来源，然后重试。</translation>
    </message>
    <message>
        <source>Compose %1</source>
        <translation>合成%1</translation>
    </message>
</context>
<context>
    <name>HRFTagStream</name>
    <message>
        <source>The old contents could not be restored; the file may be damaged.</source>
        <translation>无法恢复原有内容；文件可能已损坏。</translation>
    </message>
</context>
<context>
    <name>HRFTagWriteOperation</name>
    <message>
        <source>The permissions of the file “%1” could not be changed</source>
        <translation>无法更改文件“%1”的权限</translation>
    </message>
    <message>
        <source>Fix Permissions</source>
        <translation>修复权限</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>HRFValueTransformer</name>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kbps</translation>
    </message>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation>%1 位</translation>
    </message>
</context>
<context>
    <name>HRFViewConfigManager</name>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>People</source>
        <translation>人员</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>作品</translation>
    </message>
    <message>
        <source>Sorting</source>
        <translation>排序</translation>
    </message>
    <message>
        <source>Lyrics</source>
        <translation>歌词</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>Podcast</source>
        <translation>播客</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>HRFWidgetsInteraction</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>ID3MetaData</name>
    <message>
        <source>Its ID3v2 tag is cut off</source>
        <translation>文件的 ID3v2 标签不完整</translation>
    </message>
    <message>
        <source>Its ID3v2.3 tag has an extended header.</source>
        <translation>文件的 ID3v2.3 标签有扩展头。</translation>
    </message>
    <message>
        <source>Its tag has frames that ID3v2.3 lacks.</source>
        <translation>文件的标签含有 ID3v2.3 没有的帧。</translation>
    </message>
</context>
<context>
    <name>IFFCheck</name>
    <message>
        <source>The file is truncated.</source>
        <translation>文件不完整，已被截断。</translation>
    </message>
    <message>
        <source>The file has audio behind its last chunk; its recording was broken off.</source>
        <translation>文件的最后一个数据块之后还有音频；其录制曾中断。</translation>
    </message>
    <message>
        <source>The file would be larger than 4 GiB, more than its format can hold.</source>
        <translation>文件将大于 4 GiB，超出其格式所能容纳的大小。</translation>
    </message>
</context>
<context>
    <name>IFFID3</name>
    <message>
        <source>Its ID3v2 tag is damaged; a part of it would be lost.</source>
        <translation>文件的 ID3v2 标签已损坏；其中一部分会丢失。</translation>
    </message>
    <message>
        <source>Its ID3v2 tag is cut off; a part of it would be lost.</source>
        <translation>文件的 ID3v2 标签不完整；其中一部分会丢失。</translation>
    </message>
    <message>
        <source>It has several ID3v2 tags that differ; one would be lost.</source>
        <translation>文件有多个不同的 ID3v2 标签；其中一个会丢失。</translation>
    </message>
</context>
<context>
    <name>MP4Check</name>
    <message>
        <source>One of its atoms runs past the end of the enclosing atom.</source>
        <translation>文件的一个原子超出了外层原子的末尾。</translation>
    </message>
    <message>
        <source>Its table of chunk offsets is damaged.</source>
        <translation>文件的数据块偏移表已损坏。</translation>
    </message>
    <message>
        <source>It does not state the size of the atom that holds the tags.</source>
        <translation>文件没有注明存放标签的原子的大小。</translation>
    </message>
    <message>
        <source>It states a size around the tags in 64 bits.</source>
        <translation>文件以 64 位注明标签外层的大小。</translation>
    </message>
    <message>
        <source>Its tags are of another kind, which cannot be changed.</source>
        <translation>文件的标签属于另一类型，无法更改。</translation>
    </message>
    <message>
        <source>Its audio would move to where its chunk offsets of 32 bits do not reach.</source>
        <translation>音频将移到 32 位偏移量无法到达的位置。</translation>
    </message>
    <message>
        <source>Its audio is in fragments that cannot be moved to make room for the tags.</source>
        <translation>音频位于无法移动的片段中，无法为标签腾出空间。</translation>
    </message>
</context>
<context>
    <name>MP4Nesting</name>
    <message>
        <source>It has too many atoms.</source>
        <translation>文件的原子过多。</translation>
    </message>
</context>
<context>
    <name>OGGMetaData</name>
    <message>
        <source>Its stream has no comment.</source>
        <translation>文件的流没有注释。</translation>
    </message>
    <message>
        <source>The pages of its comment are mixed with those of another stream.</source>
        <translation>注释所在的页与另一个流的页混在一起。</translation>
    </message>
</context>
<context>
    <name>OGGVorbisMetaData</name>
    <message>
        <source>The tags of a FLAC stream cannot be larger than 16 MiB.</source>
        <translation>FLAC 流的标签不能大于 16 MiB。</translation>
    </message>
</context>
<context>
    <name>VorbisMetaData</name>
    <message>
        <source>Its tag is damaged: it ends before the last field that it states.</source>
        <translation>文件的标签已损坏：在其注明的最后一个字段之前就结束了。</translation>
    </message>
</context>
<context>
    <name>WAVInfo</name>
    <message>
        <source>It has an INFO field twice; one of them would be lost.</source>
        <translation>文件有重复的 INFO 字段；其中一个会丢失。</translation>
    </message>
    <message>
        <source>Its INFO list is damaged; a part of it would be lost.</source>
        <translation>文件的 INFO 列表已损坏；其中一部分会丢失。</translation>
    </message>
</context>
<context>
    <name>WAVMetaData</name>
    <message>
        <source>RF64 files are not supported</source>
        <translation>不支持 RF64 文件</translation>
    </message>
</context>
</TS>
