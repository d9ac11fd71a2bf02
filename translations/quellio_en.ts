<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
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
    <name>chrome</name>
    <message>
        <source>退出</source>
        <translation>Close</translation>
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
</TS>
