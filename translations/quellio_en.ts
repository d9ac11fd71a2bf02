<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>AddAwardDialog</name>
    <message>
        <source>图片文件(*.png,*.jpg,*.gif,*.bmp)|*.png;*.jpg;*.gif;*.bmp|PNG Files(*.png)|*.png|JPG Files(*.jpg)|*.jpg|GIF Files(*.gif)|*.gif|BMP Files(*.bmp)|*.bmp</source>
        <translation>Pictures(*.png,*.jpg,*.gif,*.bmp)|*.png;*.jpg;*.gif;*.bmp|PNG Files(*.png)|*.png|JPG Files(*.jpg)|*.jpg|GIF Files(*.gif)|*.gif|BMP Files(*.bmp)|*.bmp</translation>
    </message>
    <message>
        <source>增加奖项</source>
        <translation>Add award</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>AddParticipantDialog</name>
    <message>
        <source>新增 - 抽奖名单</source>
        <translation>New entry - Roster</translation>
    </message>
    <message>
        <source>图片文件 (*.jpg *.gif *.bmp *.jpeg *.png)</source>
        <translation>Pictures (*.jpg *.gif *.bmp *.jpeg *.png)</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>提示：如您只抽取文字信息，照片可以保留为空！</source>
        <translation>Tip: if you draw text only, the photo may stay empty.</translation>
    </message>
    <message>
        <source>新增失败</source>
        <translation>Not added</translation>
    </message>
</context>
<context>
    <name>AwardEditor</name>
    <message>
        <source>排除已中奖的人</source>
        <translation>Leave out people who have won</translation>
    </message>
    <message>
        <source>抽奖批次：</source>
        <translation>Batches:</translation>
    </message>
    <message>
        <source>(分几次抽取)</source>
        <translation>(drawn in this many rounds)</translation>
    </message>
    <message>
        <source>(禁止重复中奖)</source>
        <translation>(no one wins twice)</translation>
    </message>
    <message>
        <source>奖项名称：</source>
        <translation>Award:</translation>
    </message>
    <message>
        <source>奖品名额：</source>
        <translation>Winners:</translation>
    </message>
    <message>
        <source>奖品名称：</source>
        <translation>Prize:</translation>
    </message>
    <message>
        <source>编号范围：</source>
        <translation>Group no.:</translation>
    </message>
    <message>
        <source>奖品图片</source>
        <translation>Prize picture</translation>
    </message>
    <message>
        <source>暂无奖品图片</source>
        <translation>No prize picture</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>Take photo</translation>
    </message>
    <message>
        <source>选择图片</source>
        <translation>Choose picture</translation>
    </message>
    <message>
        <source>删除图片</source>
        <translation>Remove picture</translation>
    </message>
    <message>
        <source>AS 消息</source>
        <translation>Stage message</translation>
    </message>
    <message>
        <source>添加奖品图片</source>
        <translation>Add prize picture</translation>
    </message>
</context>
<context>
    <name>AwardManagerDialog</name>
    <message>
        <source>图片文件(*.png,*.jpg,*.gif,*.bmp)|*.png;*.jpg;*.jpej;*.gif;*.bmp|PNG Files(*.png)|*.png|JPG Files(*.jpg)|*.jpg;jpeg|GIF Files(*.gif)|*.gif|BMP Files(*.bmp)|*.bmp</source>
        <translation>Pictures(*.png,*.jpg,*.gif,*.bmp)|*.png;*.jpg;*.jpej;*.gif;*.bmp|PNG Files(*.png)|*.png|JPG Files(*.jpg)|*.jpg;jpeg|GIF Files(*.gif)|*.gif|BMP Files(*.bmp)|*.bmp</translation>
    </message>
    <message>
        <source>奖项设置</source>
        <translation>Award settings</translation>
    </message>
    <message>
        <source>奖项编辑</source>
        <translation>Edit award</translation>
    </message>
    <message>
        <source>保存编辑</source>
        <translation>Save changes</translation>
    </message>
    <message>
        <source>＋ 增加奖项</source>
        <translation>+ Add award</translation>
    </message>
    <message>
        <source>✕ 删除奖项</source>
        <translation>✕ Delete awards</translation>
    </message>
    <message>
        <source>↓ 向下移动</source>
        <translation>↓ Move down</translation>
    </message>
    <message>
        <source>↑ 向上移动</source>
        <translation>↑ Move up</translation>
    </message>
    <message>
        <source>勾选奖项后点“删除奖项”；抽奖按列表顺序进行</source>
        <translation>Tick awards, then &quot;Delete awards&quot;; awards are drawn in list order</translation>
    </message>
    <message>
        <source>排序</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>奖项名称</source>
        <translation>Award</translation>
    </message>
    <message>
        <source>名额</source>
        <translation>Winners</translation>
    </message>
    <message>
        <source>批次</source>
        <translation>Batches</translation>
    </message>
    <message>
        <source>奖品名称</source>
        <translation>Prize</translation>
    </message>
    <message>
        <source>奖品图片</source>
        <translation>Prize picture</translation>
    </message>
    <message>
        <source>重复中奖</source>
        <translation>Win twice</translation>
    </message>
    <message>
        <source>区分编号范围</source>
        <translation>Group no. range</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>找不到对应的名单</source>
        <translation>No matching entry found</translation>
    </message>
    <message>
        <source>注意：当前编辑奖项已经存在中奖记录
本操作将清除所有与之对应的中奖记录!
确认要编辑么?</source>
        <translation>Note: this award already has winners.
Saving clears all of its winners!
Save the change?</translation>
    </message>
    <message>
        <source>奖项数据更新成功！</source>
        <translation>The award has been saved.</translation>
    </message>
    <message>
        <source>请选择需要删除的奖项!</source>
        <translation>Please tick the awards to delete.</translation>
    </message>
    <message>
        <source>删除失败</source>
        <translation>Not deleted</translation>
    </message>
    <message>
        <source>“删除奖项”将清除与之对应的中奖记录
确认要删除么?</source>
        <translation>Deleting awards clears their winners.
Delete them?</translation>
    </message>
</context>
<context>
    <name>CameraCaptureDialog</name>
    <message>
        <source>拍照</source>
        <translation>Take photo</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>重拍</source>
        <translation>Retake</translation>
    </message>
    <message>
        <source>正在开启摄像头...</source>
        <translation>Starting the camera...</translation>
    </message>
    <message>
        <source>打开摄像头失败...</source>
        <translation>The camera could not be started...</translation>
    </message>
</context>
<context>
    <name>ChangePasswordDialog</name>
    <message>
        <source>密码设置</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>是否启用密码保护</source>
        <translation>Protect with a password</translation>
    </message>
    <message>
        <source>保持原密码请保留为空!</source>
        <translation>Leave empty to keep the current password.</translation>
    </message>
    <message>
        <source>输入密码∶</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>确认密码∶</source>
        <translation>Confirm:</translation>
    </message>
    <message>
        <source>两次输入的密码不一致</source>
        <translation>The two passwords differ</translation>
    </message>
    <message>
        <source>设置成功!</source>
        <translation>Saved.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>年会、活动现场抽奖软件。</source>
        <translation>Lucky draw for company parties and events.</translation>
    </message>
    <message>
        <source>使用此文件夹作为程序文件夹(与环境变量 QUELLIO_HOME 相同)。</source>
        <translation>Use this folder as the program folder (as the QUELLIO_HOME environment variable does).</translation>
    </message>
    <message>
        <source>文件夹</source>
        <translation>folder</translation>
    </message>
    <message>
        <source>在此空文件夹中创建带示例名单和奖项的演示程序文件夹,然后在其上启动。</source>
        <translation>Make a demo program folder with a sample roster and awards in this empty folder, then start on it.</translation>
    </message>
    <message>
        <source>多余的参数: %1</source>
        <translation>Unexpected arguments: %1</translation>
    </message>
    <message>
        <source>--home 与 --fresh-demo 不能同时使用。</source>
        <translation>--home and --fresh-demo cannot be used together.</translation>
    </message>
</context>
<context>
    <name>ConsoleWindow</name>
    <message>
        <source>Quellio抽奖(全能版)</source>
        <translation>Quellio Lucky Draw</translation>
    </message>
    <message>
        <source>年会 · 庆典 · 活动现场的幸运抽奖</source>
        <translation>Lucky draws for parties, ceremonies and events</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimise</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>视频教程</source>
        <translation>Video tutorial</translation>
    </message>
    <message>
        <source>抽奖设置</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>开始抽奖</source>
        <translation>Start draw</translation>
    </message>
    <message>
        <source>名单、奖项与界面设置</source>
        <translation>Roster, awards and screen settings</translation>
    </message>
    <message>
        <source>进入全屏抽奖界面</source>
        <translation>Open the full-screen draw</translation>
    </message>
    <message>
        <source>抽奖进度∶</source>
        <translation>Progress:</translation>
    </message>
    <message>
        <source>一键复原重抽</source>
        <translation>Reset all draws</translation>
    </message>
    <message>
        <source>清空所有中奖记录,复原至初始状态</source>
        <translation>Clear all winners and start again</translation>
    </message>
    <message>
        <source>查看中奖详情</source>
        <translation>Winners</translation>
    </message>
    <message>
        <source>快捷键设置</source>
        <translation>Hotkeys</translation>
    </message>
    <message>
        <source>音乐设置</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>抽奖向导</source>
        <translation>Draw wizard</translation>
    </message>
    <message>
        <source>权限密码设置</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>名单设置</source>
        <translation>Roster</translation>
    </message>
    <message>
        <source>奖项设置</source>
        <translation>Awards</translation>
    </message>
    <message>
        <source>界面设置</source>
        <translation>Screen</translation>
    </message>
    <message>
        <source>返回</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>收起设置面板</source>
        <translation>Close the settings panel</translation>
    </message>
    <message>
        <source>名单即是您抽取的信息,名单信息可以是文本、编号、数字、图片等。</source>
        <translation>The roster is what you draw from: names, codes, numbers, pictures and so on.</translation>
    </message>
    <message>
        <source>您可以通过以下任何一种方式快捷生成名单</source>
        <translation>Make your roster in any of these ways</translation>
    </message>
    <message>
        <source>管理名单</source>
        <translation>Manage the roster</translation>
    </message>
    <message>
        <source>我要从Excel文件中导入名单</source>
        <translation>Import the roster from an Excel file</translation>
    </message>
    <message>
        <source>我要从txt文件中导入名单</source>
        <translation>Import the roster from a text file</translation>
    </message>
    <message>
        <source>我要批量导入图片作为名单</source>
        <translation>Import pictures as the roster</translation>
    </message>
    <message>
        <source>我要生成编号作为名单</source>
        <translation>Generate numbers as the roster</translation>
    </message>
    <message>
        <source>奖项设置即是您此次抽奖活动中安排的奖品名次、奖品内容等</source>
        <translation>Awards are the prizes of this event, their order and what they are</translation>
    </message>
    <message>
        <source>当前共计设置奖项</source>
        <translation>Awards: </translation>
    </message>
    <message>
        <source>项, 奖品共计</source>
        <translation>, prizes: </translation>
    </message>
    <message>
        <source>个,供计分</source>
        <translation>, drawn in </translation>
    </message>
    <message>
        <source>次抽取</source>
        <translation> batches</translation>
    </message>
    <message>
        <source>▸ 管理我的奖项</source>
        <translation>▸ Manage my awards</translation>
    </message>
    <message>
        <source>已恢复至初始抽奖状态!</source>
        <translation>All draws have been reset.</translation>
    </message>
</context>
<context>
    <name>DrawWizardDialog</name>
    <message>
        <source>抽奖向导</source>
        <translation>Draw wizard</translation>
    </message>
    <message>
        <source>抽奖方式</source>
        <translation>Draw mode</translation>
    </message>
    <message>
        <source>名单屏蔽</source>
        <translation>Masking</translation>
    </message>
    <message>
        <source>记住我的选择,下次启动抽奖时不再提示</source>
        <translation>Remember my choice and do not ask at the next draw</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>文字或数字抽奖</source>
        <translation>Text or numbers</translation>
    </message>
    <message>
        <source>纯图片抽奖</source>
        <translation>Pictures only</translation>
    </message>
    <message>
        <source>图片加文字抽奖</source>
        <translation>Pictures with text</translation>
    </message>
    <message>
        <source>慢</source>
        <translation>Slow</translation>
    </message>
    <message>
        <source>快</source>
        <translation>Fast</translation>
    </message>
    <message>
        <source>抽奖时滚动显示的内容</source>
        <translation>What rolls during the draw</translation>
    </message>
    <message>
        <source>抽奖时候名单切换速度</source>
        <translation>How fast the names change</translation>
    </message>
    <message>
        <source>抽奖时对&quot;文字信息&quot;进行字段屏蔽</source>
        <translation>Mask part of the text during the draw</translation>
    </message>
    <message>
        <source>左侧保留：</source>
        <translation>Keep left:</translation>
    </message>
    <message>
        <source>位</source>
        <translation>chars</translation>
    </message>
    <message>
        <source>右侧保留：</source>
        <translation>Keep right:</translation>
    </message>
    <message>
        <source>替换字符：</source>
        <translation>Mask with:</translation>
    </message>
    <message>
        <source>演示原文∶</source>
        <translation>Sample:</translation>
    </message>
    <message>
        <source>抽奖画面显示在：</source>
        <translation>Show the draw on:</translation>
    </message>
    <message>
        <source>参数保存成功!</source>
        <translation>Settings saved.</translation>
    </message>
</context>
<context>
    <name>ExcelImport</name>
    <message>
        <source>
重复数据：</source>
        <translation>
Duplicate: </translation>
    </message>
</context>
<context>
    <name>ExcelImportDialog</name>
    <message>
        <source>导入Excel</source>
        <translation>Import Excel</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>字段</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>导入的表格中第一行包含了标题</source>
        <translation>The first row of the sheet holds titles</translation>
    </message>
    <message>
        <source>（勾选后将从Excel第2行开始导入）</source>
        <translation>(when ticked, the import starts at row 2)</translation>
    </message>
    <message>
        <source>导入后信息样式（演示前3条记录）</source>
        <translation>Result preview (first 3 entries)</translation>
    </message>
    <message>
        <source>排序</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>抽奖名单(抽奖时滚动的内容)</source>
        <translation>Name (what rolls during the draw)</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remark</translation>
    </message>
    <message>
        <source>开始导入</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>打开excel模板</source>
        <translation>Open Excel template</translation>
    </message>
    <message>
        <source>工作表：</source>
        <translation>Sheet:</translation>
    </message>
    <message>
        <source>勾选组成抽奖名单的列（其余列合并为备注）：</source>
        <translation>Tick the columns that make the name (the others become the remark):</translation>
    </message>
    <message>
        <source>多列信息合并后中间穿插字符：</source>
        <translation>Put between joined columns:</translation>
    </message>
    <message>
        <source>Excel中存在过多的列，这样会导致导入速度十分缓慢
建议您修改Excel文件删除无用列再进行导入！</source>
        <translation>The Excel file has very many columns, which makes the import very slow.
Delete the columns you do not need, then import again.</translation>
    </message>
    <message>
        <source>以下省略更多内容...</source>
        <translation>More rows not shown...</translation>
    </message>
    <message>
        <source>重复数据</source>
        <translation>Duplicates</translation>
    </message>
</context>
<context>
    <name>HotkeySettingsDialog</name>
    <message>
        <source>开始抽奖∶</source>
        <translation>Start draw:</translation>
    </message>
    <message>
        <source>停止抽奖∶</source>
        <translation>Stop draw:</translation>
    </message>
    <message>
        <source>取消滚动∶</source>
        <translation>Clear roll:</translation>
    </message>
    <message>
        <source>撤消中奖∶</source>
        <translation>Cancel batch:</translation>
    </message>
    <message>
        <source>导出中奖∶</source>
        <translation>Export winners:</translation>
    </message>
    <message>
        <source>打印中奖∶</source>
        <translation>Print winners:</translation>
    </message>
    <message>
        <source>中奖播放∶</source>
        <translation>Winner parade:</translation>
    </message>
    <message>
        <source>音量控制∶</source>
        <translation>Sound on/off:</translation>
    </message>
    <message>
        <source>全屏切换∶</source>
        <translation>Full screen:</translation>
    </message>
    <message>
        <source>快捷键设置</source>
        <translation>Hotkeys</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>点击输入框后直接按下要设置的键。开始与停止可以使用同一个键。</source>
        <translation>Click a box, then press the key you want. Start and stop may share one key.</translation>
    </message>
    <message>
        <source>抽奖快捷键</source>
        <translation>Draw hotkeys</translation>
    </message>
    <message>
        <source>直接按下您需要设置的键</source>
        <translation>Press the key you want</translation>
    </message>
    <message>
        <source>防误操作</source>
        <translation>Guard against mistakes</translation>
    </message>
    <message>
        <source>开始/停止按键间隔时间(单位∶秒)</source>
        <translation>Time between start and stop (seconds)</translation>
    </message>
    <message>
        <source>启用后在开始抽奖后的指定时间内无法按停止键</source>
        <translation>When on, Stop does nothing for this long after Start</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>导入发生错误,错误原因如下
</source>
        <translation>The import failed because of this error:
</translation>
    </message>
    <message>
        <source>文件正在导入中，确认要退出么？</source>
        <translation>The file is still being imported. Stop and close?</translation>
    </message>
    <message>
        <source>导入的名单追加到原有名单之后</source>
        <translation>Add the imported entries after the current roster</translation>
    </message>
    <message>
        <source>完全替换原有名单</source>
        <translation>Replace the current roster</translation>
    </message>
    <message>
        <source>共导入数据%1条，屏蔽重复数据%2条</source>
        <translation>Imported %1 entries, left out %2 duplicates</translation>
    </message>
    <message>
        <source>，跳过空白或无法识别的数据%1条</source>
        <translation>, skipped %1 empty or unreadable lines</translation>
    </message>
</context>
<context>
    <name>MusicSettingsDialog</name>
    <message>
        <source>背景音乐</source>
        <translation>Background music</translation>
    </message>
    <message>
        <source>开始抽奖音乐</source>
        <translation>Draw music</translation>
    </message>
    <message>
        <source>中奖提示音乐</source>
        <translation>Winner sound</translation>
    </message>
    <message>
        <source>播放中奖音乐</source>
        <translation>Parade music</translation>
    </message>
    <message>
        <source>启用或禁止背景音乐</source>
        <translation>Turn the background music on or off</translation>
    </message>
    <message>
        <source>启用或禁止抽奖音乐</source>
        <translation>Turn the draw music on or off</translation>
    </message>
    <message>
        <source>启用或禁止中奖音乐</source>
        <translation>Turn the winner sound on or off</translation>
    </message>
    <message>
        <source>未设置音乐</source>
        <translation>No music set</translation>
    </message>
    <message>
        <source>音乐文件(*.mp3,*.wav)|*.mp3;*.wav|MP3 Files(*.mp3)|*.mp3|WAV Files(*.wav)|*.wav</source>
        <translation>Music files(*.mp3,*.wav)|*.mp3;*.wav|MP3 Files(*.mp3)|*.mp3|WAV Files(*.wav)|*.wav</translation>
    </message>
    <message>
        <source>音乐设置</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>保存时选择的音乐会复制到程序的 Music 文件夹,程序搬到别处也能找到。</source>
        <translation>On saving, the chosen music is copied into the program&apos;s Music folder, so it is found wherever the program moves.</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Choose</translation>
    </message>
    <message>
        <source>试听</source>
        <translation>Listen</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>添加音乐</source>
        <translation>Add music</translation>
    </message>
    <message>
        <source>音乐设置保存成功!</source>
        <translation>Music settings saved.</translation>
    </message>
</context>
<context>
    <name>NumberGeneratorDialog</name>
    <message>
        <source>屏蔽数据如下：
</source>
        <translation>Left out:
</translation>
    </message>
    <message>
        <source>编号正在生成当中...，确认要退出么？</source>
        <translation>Numbers are still being generated. Stop and close?</translation>
    </message>
    <message>
        <source>编号生成</source>
        <translation>Generate numbers</translation>
    </message>
    <message>
        <source>开始生成</source>
        <translation>Generate</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>起始数值不能为空</source>
        <translation>The first number cannot be empty</translation>
    </message>
    <message>
        <source>终止数值不能为空！</source>
        <translation>The last number cannot be empty!</translation>
    </message>
    <message>
        <source>编号选项参数</source>
        <translation>Number options</translation>
    </message>
    <message>
        <source>如不需前缀可不填写，保留为空</source>
        <translation>Leave empty for no prefix</translation>
    </message>
    <message>
        <source>如不需后缀可不填写，保留为空</source>
        <translation>Leave empty for no suffix</translation>
    </message>
    <message>
        <source>编号位数不足则补充字符</source>
        <translation>Pad short numbers with</translation>
    </message>
    <message>
        <source>生成的编号中将不包含此处录入的数字</source>
        <translation>Numbers containing these digits are left out</translation>
    </message>
    <message>
        <source>提示：多组屏蔽数字可以用逗号隔开 如(4,13)</source>
        <translation>Tip: separate several masked numbers by commas, e.g. (4,13)</translation>
    </message>
    <message>
        <source>编号前缀：</source>
        <translation>Prefix:</translation>
    </message>
    <message>
        <source>编号后缀：</source>
        <translation>Suffix:</translation>
    </message>
    <message>
        <source>开始数值：</source>
        <translation>From:</translation>
    </message>
    <message>
        <source>结束数值：</source>
        <translation>To:</translation>
    </message>
    <message>
        <source>屏蔽数字：</source>
        <translation>Leave out:</translation>
    </message>
    <message>
        <source>效果演示：</source>
        <translation>Sample:</translation>
    </message>
    <message>
        <source>开始数值只能小于终止数值!</source>
        <translation>The first number must be below the last one!</translation>
    </message>
    <message>
        <source>重要提示</source>
        <translation>Important</translation>
    </message>
    <message>
        <source>生成数字编号将会完全覆盖原来名单
您确认要生成编号么？</source>
        <translation>Generating numbers replaces the whole current roster.
Generate the numbers?</translation>
    </message>
    <message>
        <source>共导入%1条，屏蔽%2条</source>
        <translation>Imported %1, left out %2</translation>
    </message>
</context>
<context>
    <name>PasswordPromptDialog</name>
    <message>
        <source>密码验证</source>
        <translation>Password check</translation>
    </message>
    <message>
        <source>请输入管理密码</source>
        <translation>Enter the admin password</translation>
    </message>
    <message>
        <source>系统默认密码为 628413 </source>
        <translation>The factory password is 628413 </translation>
    </message>
    <message>
        <source>请输入密码!</source>
        <translation>Please enter the password.</translation>
    </message>
    <message>
        <source>密码错误</source>
        <translation>Wrong password</translation>
    </message>
</context>
<context>
    <name>PhotoImport</name>
    <message>
        <source>
重复图片∶</source>
        <translation>
Duplicate picture: </translation>
    </message>
    <message>
        <source>
PNG不支持压缩∶</source>
        <translation>
PNG cannot be shrunk: </translation>
    </message>
    <message>
        <source>
压缩失败∶</source>
        <translation>
Shrinking failed: </translation>
    </message>
</context>
<context>
    <name>PhotoImportDialog</name>
    <message>
        <source>导入照片</source>
        <translation>Import photos</translation>
    </message>
    <message>
        <source>选择照片目录</source>
        <translation>Choose photos</translation>
    </message>
    <message>
        <source>选择..</source>
        <translation>Choose..</translation>
    </message>
    <message>
        <source>可以按CTRL+A全选要导入的照片</source>
        <translation>Press Ctrl+A to select all the photos to import</translation>
    </message>
    <message>
        <source>参考格式：(张三.jpg 或 张三,宣传部.jpg) </source>
        <translation>File names like: (Jane Doe.jpg or Jane Doe,Sales.jpg) </translation>
    </message>
    <message>
        <source>启用智能图片压缩</source>
        <translation>Shrink large pictures</translation>
    </message>
    <message>
        <source>(如果您的图片较大,建议启用)</source>
        <translation>(recommended for large pictures)</translation>
    </message>
    <message>
        <source>像素范围(800x800)内</source>
        <translation>to fit 800x800 pixels</translation>
    </message>
    <message>
        <source>如果您导入的照片未经处理,建议启用压缩</source>
        <translation>Recommended for photos straight from a camera</translation>
    </message>
    <message>
        <source>追加名单</source>
        <translation>Add to roster</translation>
    </message>
    <message>
        <source>导入的名单将追加到原有名单之后</source>
        <translation>The imported entries are added after the current roster</translation>
    </message>
    <message>
        <source>覆盖名单</source>
        <translation>Replace roster</translation>
    </message>
    <message>
        <source>导入的名单将完全替换原有名单</source>
        <translation>The imported entries replace the whole current roster</translation>
    </message>
    <message>
        <source>请选择照片</source>
        <translation>Please choose photos</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>像素范围(%1x%1)内</source>
        <translation>to fit %1x%1 pixels</translation>
    </message>
    <message>
        <source>所有图片文件 (*.jpg *.gif *.jpeg *.png);;JPG Files(*.jpg *.jpeg);;GIF Files(*.gif);;PNG Files(*.png)</source>
        <translation>All pictures (*.jpg *.gif *.jpeg *.png);;JPG Files(*.jpg *.jpeg);;GIF Files(*.gif);;PNG Files(*.png)</translation>
    </message>
    <message>
        <source>共加载图片%1张，请点开始导入。</source>
        <translation>%1 pictures loaded. Click Start to import them.</translation>
    </message>
    <message>
        <source>导入数据中......,完成%1/%2</source>
        <translation>Importing......, %1/%2 done</translation>
    </message>
    <message>
        <source>导入名单%1条
重复%2条,请点确定按钮刷新</source>
        <translation>Imported %1 entries
%2 duplicates. Click OK to refresh</translation>
    </message>
    <message>
        <source>
文件名中没有姓名,跳过%1张</source>
        <translation>
Skipped %1 with no name in the file name</translation>
    </message>
</context>
<context>
    <name>RosterImport</name>
    <message>
        <source>
屏蔽空白数据</source>
        <translation>
Left out an empty line</translation>
    </message>
</context>
<context>
    <name>RosterManagerDialog</name>
    <message>
        <source>选择</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>排序</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>抽奖名单(抽奖时滚动的内容)</source>
        <translation>Name on stage</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remark</translation>
    </message>
    <message>
        <source>照片</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>区分编号</source>
        <translation>Group no.</translation>
    </message>
    <message>
        <source>抽奖名单 - 管理</source>
        <translation>Roster - Manage</translation>
    </message>
    <message>
        <source>  全选</source>
        <translation>  Select all</translation>
    </message>
    <message>
        <source>增加名单</source>
        <translation>Add entry</translation>
    </message>
    <message>
        <source>删除名单</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>导入Excel</source>
        <translation>Import Excel</translation>
    </message>
    <message>
        <source>导入txt   </source>
        <translation>Import text   </translation>
    </message>
    <message>
        <source>导入照片</source>
        <translation>Import photos</translation>
    </message>
    <message>
        <source>生成编号</source>
        <translation>Numbers</translation>
    </message>
    <message>
        <source>输入名单关键字</source>
        <translation>Search the roster</translation>
    </message>
    <message>
        <source>清除查询关键字</source>
        <translation>Clear the search</translation>
    </message>
    <message>
        <source>查找名单</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>默认排序</source>
        <translation>Default order</translation>
    </message>
    <message>
        <source>按备注信息排序</source>
        <translation>By remark</translation>
    </message>
    <message>
        <source>按区分编号排序</source>
        <translation>By group no.</translation>
    </message>
    <message>
        <source>按状态排序</source>
        <translation>By status</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>批量设置区分编号</source>
        <translation>Set group no.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>名单编辑</source>
        <translation>Edit entry</translation>
    </message>
    <message>
        <source>图片文件(*.jpg *.gif *.bmp *.jpeg *.png)</source>
        <translation>Pictures (*.jpg *.gif *.bmp *.jpeg *.png)</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>总计人数：%1</source>
        <translation>People: %1</translation>
    </message>
    <message>
        <source>已中奖人数：%1</source>
        <translation>Winners: %1</translation>
    </message>
    <message>
        <source>弃奖∶%1</source>
        <translation>Gave up: %1</translation>
    </message>
    <message>
        <source>当前第∶%1页/ 共%2页</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>找不到对应的名单</source>
        <translation>No matching entry found</translation>
    </message>
    <message>
        <source>“区分编号”只能填写数字</source>
        <translation>The group no. must be a number</translation>
    </message>
    <message>
        <source>编辑失败</source>
        <translation>Not saved</translation>
    </message>
    <message>
        <source>数据更新成功！</source>
        <translation>Saved.</translation>
    </message>
    <message>
        <source>请勾选需要删除的名单!</source>
        <translation>Please tick the entries to delete.</translation>
    </message>
    <message>
        <source>删除失败</source>
        <translation>Not deleted</translation>
    </message>
    <message>
        <source>确认要删除选择的抽奖名单么?</source>
        <translation>Delete the ticked entries?</translation>
    </message>
    <message>
        <source>请勾选需要设置区分编号的名单!</source>
        <translation>Please tick the entries to give a group no.</translation>
    </message>
    <message>
        <source>请输入区分编号
只能输入数字</source>
        <translation>Enter the group no.
Digits only</translation>
    </message>
    <message>
        <source>您没输入正确的区分编号!</source>
        <translation>That is not a valid group no.!</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>Not saved</translation>
    </message>
    <message>
        <source>导出文件</source>
        <translation>Export file</translation>
    </message>
    <message>
        <source>抽奖名单.csv</source>
        <translation>roster.csv</translation>
    </message>
    <message>
        <source>导出完毕</source>
        <translation>Exported.</translation>
    </message>
</context>
<context>
    <name>TemplatePanel</name>
    <message>
        <source>更换背景图片</source>
        <translation>Change background</translation>
    </message>
    <message>
        <source>恢复原图</source>
        <translation>Restore original</translation>
    </message>
    <message>
        <source>保存修改</source>
        <translation>Save changes</translation>
    </message>
    <message>
        <source>编辑模板</source>
        <translation>Edit template</translation>
    </message>
    <message>
        <source>宽度</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>高度</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>(单位：像素)</source>
        <translation>(pixels)</translation>
    </message>
    <message>
        <source>模板∶</source>
        <translation>Template:</translation>
    </message>
    <message>
        <source>主标题∶</source>
        <translation>Title:</translation>
    </message>
    <message>
        <source>副标题∶</source>
        <translation>Subtitle:</translation>
    </message>
    <message>
        <source>分辨率：</source>
        <translation>Resolution:</translation>
    </message>
    <message>
        <source>界面设置，即是设置抽奖界面的背景、标题以及文字样式等!</source>
        <translation>Screen settings set the draw screen&apos;s background, titles and text styles.</translation>
    </message>
    <message>
        <source>AS提示</source>
        <translation>Stage notice</translation>
    </message>
    <message>
        <source>界面数据文件损坏!</source>
        <translation>The screen data file is damaged!</translation>
    </message>
    <message>
        <source>选择背景图片</source>
        <translation>Choose background picture</translation>
    </message>
    <message>
        <source>背景文件(*.png *.jpg *.jpeg *.gif *.bmp);;PNG Files(*.png);;JPG Files(*.jpg *.jpeg);;GIF Files(*.gif);;BMP Files(*.bmp)</source>
        <translation>Backgrounds(*.png *.jpg *.jpeg *.gif *.bmp);;PNG Files(*.png);;JPG Files(*.jpg *.jpeg);;GIF Files(*.gif);;BMP Files(*.bmp)</translation>
    </message>
</context>
<context>
    <name>TextImportDialog</name>
    <message>
        <source>导入txt文件</source>
        <translation>Import text file</translation>
    </message>
    <message>
        <source>导入信息</source>
        <translation>Import result</translation>
    </message>
    <message>
        <source>提示：&quot;间隔符号&quot;是用来将文本中一行信息前后分开
分别导入到 抽奖名单 和 备注栏中</source>
        <translation>Tip: the separator splits each line of the file in two:
the name before it and the remark after it</translation>
    </message>
    <message>
        <source>开始导入</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>文件：</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>Txt文件中信息间隔符号：</source>
        <translation>Separator in the text file:</translation>
    </message>
    <message>
        <source>重复数据</source>
        <translation>Duplicates</translation>
    </message>
</context>
<context>
    <name>TxtImport</name>
    <message>
        <source>无法打开文件：</source>
        <translation>Cannot open the file: </translation>
    </message>
    <message>
        <source>
屏蔽无法识别的数据：第%1行</source>
        <translation>
Left out an unreadable line: line %1</translation>
    </message>
    <message>
        <source>
重复数据：</source>
        <translation>
Duplicate: </translation>
    </message>
    <message>
        <source>
区分编号超出范围,记为0：第%1行</source>
        <translation>
Group no. out of range, set to 0: line %1</translation>
    </message>
</context>
<context>
    <name>WinnerListDialog</name>
    <message>
        <source>查看中奖</source>
        <translation>Winners</translation>
    </message>
    <message>
        <source>导出名单</source>
        <translation>Export list</translation>
    </message>
    <message>
        <source>打印名单</source>
        <translation>Print list</translation>
    </message>
    <message>
        <source>按奖项顺序列出每一个中奖记录</source>
        <translation>Every win, award by award</translation>
    </message>
    <message>
        <source>序号</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>奖项名称</source>
        <translation>Award</translation>
    </message>
    <message>
        <source>奖品名称</source>
        <translation>Prize</translation>
    </message>
    <message>
        <source>中奖名单</source>
        <translation>Winner</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remark</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>awards</name>
    <message>
        <source>奖项编号已到上限32767,不能再增加奖项!</source>
        <translation>Award numbers have reached their limit of 32767: no more awards can be added!</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>大于(&gt;) %1</source>
        <translation>above (&gt;) %1</translation>
    </message>
    <message>
        <source>等于(=) %1</source>
        <translation>equal (=) %1</translation>
    </message>
    <message>
        <source>小于(&lt;) %1</source>
        <translation>below (&lt;) %1</translation>
    </message>
    <message>
        <source>%1 &lt; (介于) &lt; %2</source>
        <translation>%1 &lt; (between) &lt; %2</translation>
    </message>
    <message>
        <source>不限制</source>
        <translation>Any</translation>
    </message>
    <message>
        <source>不限区分编号</source>
        <translation>Any group no.</translation>
    </message>
    <message>
        <source>区分编号大于</source>
        <translation>Group no. above</translation>
    </message>
    <message>
        <source>区分编号等于</source>
        <translation>Group no. equal to</translation>
    </message>
    <message>
        <source>区分编号小于</source>
        <translation>Group no. below</translation>
    </message>
    <message>
        <source>区分编号介于</source>
        <translation>Group no. between</translation>
    </message>
    <message>
        <source>因拍摄照片失败,照片保存未成功!</source>
        <translation>The photo was not saved because taking it failed!</translation>
    </message>
    <message>
        <source>请输入奖项名称!</source>
        <translation>Please enter the award&apos;s name.</translation>
    </message>
    <message>
        <source>至少存在1个名额</source>
        <translation>There must be at least 1 winner</translation>
    </message>
    <message>
        <source>奖品名额最多为32767个</source>
        <translation>An award has at most 32767 winners</translation>
    </message>
    <message>
        <source>至少存在1个抽奖批次</source>
        <translation>There must be at least 1 batch</translation>
    </message>
    <message>
        <source>抽奖批次最多为32767次</source>
        <translation>An award has at most 32767 batches</translation>
    </message>
    <message>
        <source>奖品名称和奖品图片不能同时为空</source>
        <translation>Give the prize a name or a picture</translation>
    </message>
    <message>
        <source>区分编号范围值错误</source>
        <translation>The group no. range is wrong</translation>
    </message>
</context>
<context>
    <name>chrome</name>
    <message>
        <source>退出</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>是(&amp;Y)</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>否(&amp;N)</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>demofolder</name>
    <message>
        <source>无法写入示例名单: %1</source>
        <translation>Cannot write the sample roster: %1</translation>
    </message>
    <message>
        <source>文件夹不是空的: %1</source>
        <translation>The folder is not empty: %1</translation>
    </message>
    <message>
        <source>找不到出厂文件: %1</source>
        <translation>Factory files not found: %1</translation>
    </message>
    <message>
        <source>无法复制到文件夹: %1</source>
        <translation>Cannot copy into the folder: %1</translation>
    </message>
</context>
<context>
    <name>editorparts</name>
    <message>
        <source>用于对抽奖条件进行筛选的标识号码</source>
        <translation>A number that awards can use to choose who may win them</translation>
    </message>
    <message>
        <source>抽奖名单：</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>备注信息：</source>
        <translation>Remark:</translation>
    </message>
    <message>
        <source>区分编号：</source>
        <translation>Group no.:</translation>
    </message>
    <message>
        <source>请输入抽奖名单!</source>
        <translation>Please enter a name.</translation>
    </message>
    <message>
        <source>名单重复,已经存在同样的人员信息</source>
        <translation>Duplicate: the same person is already on the roster.</translation>
    </message>
    <message>
        <source>拍照</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>选择照片</source>
        <translation>Choose</translation>
    </message>
    <message>
        <source>添加照片</source>
        <translation>Add photo</translation>
    </message>
    <message>
        <source>清除照片</source>
        <translation>Clear</translation>
    </message>
</context>
<context>
    <name>hotkeys</name>
    <message>
        <source>%1键</source>
        <translation>%1 key</translation>
    </message>
    <message>
        <source>数字%1</source>
        <translation>Digit %1</translation>
    </message>
    <message>
        <source>小键盘数字%1</source>
        <translation>Keypad %1</translation>
    </message>
    <message>
        <source>BackSpace键</source>
        <translation>Backspace key</translation>
    </message>
    <message>
        <source>回车键(Enter)</source>
        <translation>Enter key</translation>
    </message>
    <message>
        <source>空格键(Space)</source>
        <translation>Space bar</translation>
    </message>
    <message>
        <source>PageUp键</source>
        <translation>Page Up key</translation>
    </message>
    <message>
        <source>PageDown键</source>
        <translation>Page Down key</translation>
    </message>
    <message>
        <source>↑键</source>
        <translation>Up arrow key</translation>
    </message>
    <message>
        <source>↓键</source>
        <translation>Down arrow key</translation>
    </message>
    <message>
        <source>Delete键</source>
        <translation>Delete key</translation>
    </message>
    <message>
        <source>不支持该键</source>
        <translation>Key not supported</translation>
    </message>
    <message>
        <source>重复,保存失效</source>
        <translation>Already used, not saved</translation>
    </message>
    <message>
        <source>无</source>
        <translation>None</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Quellio抽奖(全能版)</source>
        <translation>Quellio Lucky Draw</translation>
    </message>
</context>
<context>
    <name>numbergen</name>
    <message>
        <source>屏蔽号码后没有可以生成的号码，请修改屏蔽号码。</source>
        <translation>No number is left once the masked digits are left out. Please change them.</translation>
    </message>
</context>
<context>
    <name>replaceguard</name>
    <message>
        <source>将删除现有 %1 名参与者和 %2 条中奖记录。删除前会在 History 文件夹保存一份名单快照。
确认要替换原有名单么?</source>
        <translation>This deletes the %1 people and %2 wins on record. A copy of the roster is saved in the History folder first.
Replace the current roster?</translation>
    </message>
    <message>
        <source>和 %1 条弃奖记录</source>
        <translation> and %1 give-ups</translation>
    </message>
    <message>
        <source>将清除现有 %1 条中奖记录%2。清除前会在 History 文件夹保存一份名单快照。
确认要清空所有中奖记录,复原至初始状态么?</source>
        <translation>This clears the %1 wins%2 on record. A copy of the roster is saved in the History folder first.
Clear all winners and start again?</translation>
    </message>
    <message>
        <source>无法保存名单快照,名单未作任何改动。
</source>
        <translation>The roster copy could not be saved, so nothing was changed.
</translation>
    </message>
</context>
<context>
    <name>results</name>
    <message>
        <source>导出文件</source>
        <translation>Export file</translation>
    </message>
    <message>
        <source>中奖名单.csv</source>
        <translation>winners.csv</translation>
    </message>
    <message>
        <source>序号</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>奖项名称</source>
        <translation>Award</translation>
    </message>
    <message>
        <source>奖品成名</source>
        <translation>Prize</translation>
    </message>
    <message>
        <source>中奖名单</source>
        <translation>Winner</translation>
    </message>
    <message>
        <source>备注</source>
        <translation>Remark</translation>
    </message>
    <message>
        <source>中奖记录</source>
        <translation>winners</translation>
    </message>
    <message>
        <source>没有奖项导出失败!</source>
        <translation>There are no awards: nothing was exported.</translation>
    </message>
    <message>
        <source>导出名单完毕!!</source>
        <translation>The list has been exported.</translation>
    </message>
    <message>
        <source>奖品名称</source>
        <translation>Prize</translation>
    </message>
    <message>
        <source>当前第%1页</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>打印时间∶%1</source>
        <translation>Printed: %1</translation>
    </message>
    <message>
        <source>找不到打印机</source>
        <translation>No printer found</translation>
    </message>
    <message>
        <source>保存为PDF文件</source>
        <translation>Save as PDF file</translation>
    </message>
    <message>
        <source>中奖名单.pdf</source>
        <translation>winners.pdf</translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation>PDF files (*.pdf)</translation>
    </message>
    <message>
        <source>打印错误</source>
        <translation>Printing failed</translation>
    </message>
    <message>
        <source>没有奖项无法打印!</source>
        <translation>There are no awards: nothing to print.</translation>
    </message>
    <message>
        <source>打印完成!</source>
        <translation>Printing finished.</translation>
    </message>
    <message>
        <source>找不到当前获奖名单!</source>
        <translation>No winners on show to print.</translation>
    </message>
    <message>
        <source>当前中奖名单打印完成!</source>
        <translation>The winners on show have been printed.</translation>
    </message>
    <message>
        <source>正常</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>弃奖</source>
        <translation>Gave up</translation>
    </message>
    <message>
        <source>已领奖</source>
        <translation>Claimed</translation>
    </message>
    <message>
        <source>中奖</source>
        <translation>Won</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>中奖人数：%1</source>
        <translation>Winners: %1</translation>
    </message>
    <message>
        <source>奖品总数：%1</source>
        <translation>Prizes: %1</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>CSV Files (*.csv)</translation>
    </message>
</context>
<context>
    <name>roster</name>
    <message>
        <source>已弃奖</source>
        <translation>Gave up</translation>
    </message>
    <message>
        <source>已领奖</source>
        <translation>Claimed</translation>
    </message>
    <message>
        <source>已中奖</source>
        <translation>Won</translation>
    </message>
    <message>
        <source>“区分编号”不能大于2147483647</source>
        <translation>The group no. cannot be above 2147483647</translation>
    </message>
</context>
<context>
    <name>rosterscreens</name>
    <message>
        <source>导入Excel文件</source>
        <translation>Import Excel file</translation>
    </message>
    <message>
        <source>Excel文件 (*.xls *.xlsx)</source>
        <translation>Excel files (*.xls *.xlsx)</translation>
    </message>
    <message>
        <source>导入Txt文件</source>
        <translation>Import text file</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>Text files (*.txt)</translation>
    </message>
</context>
<context>
    <name>settings</name>
    <message>
        <source>配置文件 config.ini 中 [%1] %2 的值“%3”不是有效的整数</source>
        <translation>In the settings file config.ini, the value &quot;%3&quot; of [%1] %2 is not a valid whole number</translation>
    </message>
    <message>
        <source>找不到配置文件: %1</source>
        <translation>Settings file not found: %1</translation>
    </message>
</context>
<context>
    <name>stage</name>
    <message>
        <source>演示文字</source>
        <translation>Sample text</translation>
    </message>
</context>
<context>
    <name>startup</name>
    <message>
        <source>找不到舞台文件: %1</source>
        <translation>Stage file not found: %1</translation>
    </message>
    <message>
        <source>加载错误</source>
        <translation>Load error</translation>
    </message>
    <message>
        <source>找不到程序文件夹,请重新安装程序。</source>
        <translation>The program folder cannot be found. Please reinstall the program.</translation>
    </message>
    <message>
        <source>程序已经在运行!!</source>
        <translation>The program is already running!</translation>
    </message>
</context>
<context>
    <name>store</name>
    <message>
        <source>无法打开数据文件 %1: %2</source>
        <translation>Cannot open the data file %1: %2</translation>
    </message>
    <message>
        <source>找不到数据文件: %1</source>
        <translation>Data file not found: %1</translation>
    </message>
    <message>
        <source>缺少内置脚本 %1</source>
        <translation>Built-in script missing: %1</translation>
    </message>
    <message>
        <source>找不到模板文件: %1</source>
        <translation>Template file not found: %1</translation>
    </message>
</context>
<context>
    <name>textimport</name>
    <message>
        <source>文件不是可以导入的文本文件，请选择文本格式(*.txt)的名单文件。</source>
        <translation>The file is not a text file that can be imported. Please choose a roster in text format (*.txt).</translation>
    </message>
</context>
<context>
    <name>titles</name>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>workbook</name>
    <message>
        <source>无法读取Excel文件，文件已损坏或不是Excel工作簿。</source>
        <translation>The Excel file cannot be read: it is damaged or not an Excel workbook.</translation>
    </message>
    <message>
        <source>文件过大或已损坏</source>
        <translation>The file is too large or damaged</translation>
    </message>
    <message>
        <source>无法打开文件：</source>
        <translation>Cannot open the file: </translation>
    </message>
    <message>
        <source>找不到工作表</source>
        <translation>No worksheet found</translation>
    </message>
</context>
</TS>
