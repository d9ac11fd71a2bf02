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
    <name>AnimationObjectDialog</name>
    <message>
        <source>SWF文件属性</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>数据库中找不到SWF元件!</source>
        <translation>The animation is missing from the database!</translation>
    </message>
    <message>
        <source>默认尺寸</source>
        <translation>Natural size</translation>
    </message>
    <message>
        <source>(像素)</source>
        <translation>(pixels)</translation>
    </message>
    <message>
        <source>SWF影片宽度∶</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source>SWF影片高度∶</source>
        <translation>Height:</translation>
    </message>
    <message>
        <source>(默认请设置为0)</source>
        <translation>(0 for the natural size)</translation>
    </message>
    <message>
        <source>参数设置</source>
        <translation>Settings</translation>
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
    <name>ButtonBar</name>
    <message>
        <source>开始</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>开始抽奖</source>
        <translation>Start the draw</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>停止抽奖</source>
        <translation>Stop the draw</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>取消本次滚动</source>
        <translation>Cancel this roll</translation>
    </message>
    <message>
        <source>撤消</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>撤消本批中奖</source>
        <translation>Undo this batch</translation>
    </message>
    <message>
        <source>放弃</source>
        <translation>Give up</translation>
    </message>
    <message>
        <source>放弃中奖</source>
        <translation>Give up a win</translation>
    </message>
    <message>
        <source>补抽</source>
        <translation>Extra</translation>
    </message>
    <message>
        <source>补抽奖项</source>
        <translation>Extra draw</translation>
    </message>
    <message>
        <source>上一项</source>
        <translation>Prev</translation>
    </message>
    <message>
        <source>上一个奖项</source>
        <translation>Previous award</translation>
    </message>
    <message>
        <source>下一项</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>下一个奖项</source>
        <translation>Next award</translation>
    </message>
    <message>
        <source>打印</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>打印中奖名单</source>
        <translation>Print the winners</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>导出中奖名单</source>
        <translation>Export the winners</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Replay</translation>
    </message>
    <message>
        <source>播放中奖名单</source>
        <translation>Replay the winners</translation>
    </message>
    <message>
        <source>静音</source>
        <translation>Mute</translation>
    </message>
    <message>
        <source>关闭声音</source>
        <translation>Sound off</translation>
    </message>
    <message>
        <source>声音</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>打开声音</source>
        <translation>Sound on</translation>
    </message>
    <message>
        <source>窗口</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>退出全屏</source>
        <translation>Leave full screen</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Full</translation>
    </message>
    <message>
        <source>全屏显示</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>退出</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>退出抽奖</source>
        <translation>Leave the draw</translation>
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
    <name>DesignerWindow</name>
    <message>
        <source>  宽度:</source>
        <translation>  Width:</translation>
    </message>
    <message>
        <source> 高度:</source>
        <translation> Height:</translation>
    </message>
    <message>
        <source>模板编辑</source>
        <translation>Template editor</translation>
    </message>
    <message>
        <source>  抽奖界面设计  </source>
        <translation>  Stage layout  </translation>
    </message>
    <message>
        <source>抽奖时滚动文字样式设计</source>
        <translation>Style of the names rolling during the draw</translation>
    </message>
    <message>
        <source>  抽奖滚动文字样式设计  </source>
        <translation>  Rolling names style  </translation>
    </message>
    <message>
        <source>播放中奖时文字样式设计</source>
        <translation>Style of the winners&apos; replay</translation>
    </message>
    <message>
        <source>  播放中奖文字样式设计  </source>
        <translation>  Winners replay style  </translation>
    </message>
    <message>
        <source>Quellio抽奖软件界面设计器 Ver 2016</source>
        <translation>Quellio Lucky Draw stage designer Ver 2016</translation>
    </message>
    <message>
        <source>退出设计</source>
        <translation>Close designer</translation>
    </message>
    <message>
        <source>返回到主界面</source>
        <translation>Back to the console</translation>
    </message>
    <message>
        <source>保存修改</source>
        <translation>Save changes</translation>
    </message>
    <message>
        <source>一键还原</source>
        <translation>Restore default</translation>
    </message>
    <message>
        <source>将界面恢复到默认状态</source>
        <translation>Put the stage back to its default layout</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>缩放编辑窗口</source>
        <translation>Zoom the editing view</translation>
    </message>
    <message>
        <source>参数设置</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>参数传递错误,数组数量少于5</source>
        <translation>Bad parameters: fewer than 5 values</translation>
    </message>
    <message>
        <source>当前坐标:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <source>移动坐标:</source>
        <translation>Moved to:</translation>
    </message>
    <message>
        <source>您确定要将界面还原至初始状态么?</source>
        <translation>Do you really want to restore the stage to its original layout?</translation>
    </message>
    <message>
        <source>是否保存修改内容?</source>
        <translation>Save your changes?</translation>
    </message>
    <message>
        <source>奖品图片</source>
        <translation>Prize picture</translation>
    </message>
    <message>
        <source>奖品名称 (变量 $Name1)</source>
        <translation>Prize name (variable $Name1)</translation>
    </message>
    <message>
        <source>奖项名称 (变量 $Name2)</source>
        <translation>Award name (variable $Name2)</translation>
    </message>
    <message>
        <source>奖品数量信息(变量 $1 $2)</source>
        <translation>Prize count (variables $1 $2)</translation>
    </message>
    <message>
        <source>中奖信息</source>
        <translation>Winners ticker</translation>
    </message>
    <message>
        <source>主标题</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>副标题</source>
        <translation>Subtitle</translation>
    </message>
    <message>
        <source>插件管理</source>
        <translation>Items</translation>
    </message>
    <message>
        <source>系统元件</source>
        <translation>System items</translation>
    </message>
    <message>
        <source>抽奖名单滚动区域 (必选)</source>
        <translation>Rolling names area (required)</translation>
    </message>
    <message>
        <source>什么是变量呢?</source>
        <translation>What are variables?</translation>
    </message>
    <message>
        <source>添加元件</source>
        <translation>Add item</translation>
    </message>
    <message>
        <source>添加文字</source>
        <translation>Add text</translation>
    </message>
    <message>
        <source>滚动文字</source>
        <translation>Scrolling text</translation>
    </message>
    <message>
        <source>添加图片</source>
        <translation>Add image</translation>
    </message>
    <message>
        <source>添加动画</source>
        <translation>Add animation</translation>
    </message>
    <message>
        <source>当前元件</source>
        <translation>Selected item</translation>
    </message>
    <message>
        <source>上一层</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>下一层</source>
        <translation>Backward</translation>
    </message>
    <message>
        <source>编 辑  </source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>删 除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>方向键微调位置(Shift 10像素), Delete 删除, Ctrl+Z 撤销, Ctrl+Y 重做</source>
        <translation>Arrow keys nudge (Shift: 10 px), Delete removes, Ctrl+Z undo, Ctrl+Y redo</translation>
    </message>
    <message>
        <source>图片文件(*.png,*.jpg,*.gif,*.bmp,*.jpeg)|*.png;*.jpg;*.gif;*.bmp;*.jpeg|PNG Files(*.png)|*.png|JPG Files(*.jpg)|*.jpg|GIF Files(*.gif)|*.gif|BMP Files(*.bmp)|*.bmp</source>
        <translation>Image files(*.png,*.jpg,*.gif,*.bmp,*.jpeg)|*.png;*.jpg;*.gif;*.bmp;*.jpeg|PNG Files(*.png)|*.png|JPG Files(*.jpg)|*.jpg|GIF Files(*.gif)|*.gif|BMP Files(*.bmp)|*.bmp</translation>
    </message>
    <message>
        <source>动画文件(*.gif,*.webp,*.png)|*.gif;*.webp;*.png;*.apng</source>
        <translation>Animation files(*.gif,*.webp,*.png)|*.gif;*.webp;*.png;*.apng</translation>
    </message>
    <message>
        <source>元件管理</source>
        <translation>Item</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>上移一层</source>
        <translation>Bring forward</translation>
    </message>
    <message>
        <source>下移一层</source>
        <translation>Send backward</translation>
    </message>
</context>
<context>
    <name>DrawArea</name>
    <message>
        <source>演示文字</source>
        <translation>Sample name</translation>
    </message>
    <message>
        <source>好运即将揭晓</source>
        <translation>Good luck is on its way</translation>
    </message>
</context>
<context>
    <name>DrawAreaPanel</name>
    <message>
        <source>方形背景</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>圆角背景</source>
        <translation>Rounded</translation>
    </message>
    <message>
        <source>设置背景圆角弧度大小</source>
        <translation>Corner radius of the background</translation>
    </message>
    <message>
        <source>设置...</source>
        <translation>Set...</translation>
    </message>
    <message>
        <source>演示数据</source>
        <translation>Sample</translation>
    </message>
    <message>
        <source>纯文字抽奖</source>
        <translation>Names only</translation>
    </message>
    <message>
        <source>纯图片抽奖</source>
        <translation>Pictures only</translation>
    </message>
    <message>
        <source>图片加文字</source>
        <translation>Picture and name</translation>
    </message>
    <message>
        <source>背景类型：</source>
        <translation>Background:</translation>
    </message>
    <message>
        <source>背景颜色：</source>
        <translation>Background colour:</translation>
    </message>
    <message>
        <source>背景透明：</source>
        <translation>Background opacity:</translation>
    </message>
    <message>
        <source>横向间距：</source>
        <translation>Horizontal gap:</translation>
    </message>
    <message>
        <source>纵向间距：</source>
        <translation>Vertical gap:</translation>
    </message>
    <message>
        <source>文字边距：</source>
        <translation>Text padding:</translation>
    </message>
    <message>
        <source>设置字体：</source>
        <translation>Font:</translation>
    </message>
    <message>
        <source>预览数量：</source>
        <translation>Preview count:</translation>
    </message>
    <message>
        <source>预览文字：</source>
        <translation>Preview text:</translation>
    </message>
    <message>
        <source>预览模式：</source>
        <translation>Preview mode:</translation>
    </message>
    <message>
        <source>背景单元格设置</source>
        <translation>Cell background</translation>
    </message>
</context>
<context>
    <name>DrawFontDialog</name>
    <message>
        <source>字体设置</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>读取数据错误!</source>
        <translation>Could not read the data!</translation>
    </message>
    <message>
        <source>滚动字体样式</source>
        <translation>Rolling names font</translation>
    </message>
</context>
<context>
    <name>DrawWindow</name>
    <message>
        <source>抽奖名单</source>
        <translation>names</translation>
    </message>
    <message>
        <source>· 在“名单设置”中添加名单，或从Excel、txt文件导入名单</source>
        <translation>· In “Names”, add names or import them from an Excel or txt file</translation>
    </message>
    <message>
        <source>奖项</source>
        <translation>awards</translation>
    </message>
    <message>
        <source>· 在“奖项设置”中添加奖项</source>
        <translation>· In “Awards”, add awards</translation>
    </message>
    <message>
        <source>还没有%1，无法开始抽奖。
请按Esc退出抽奖界面，在控制台点击“抽奖设置”：
</source>
        <translation>There are no %1 yet, the draw cannot start.
Press Esc to leave the stage, then on the console click “Draw setup”:
</translation>
    </message>
    <message>
        <source>和</source>
        <translation> and </translation>
    </message>
    <message>
        <source>  指纹 %1</source>
        <translation>  fingerprint %1</translation>
    </message>
    <message>
        <source>确认要退出当前抽奖界面么?</source>
        <translation>Leave the draw screen?</translation>
    </message>
    <message>
        <source>返回系统消息</source>
        <translation> sent a system message</translation>
    </message>
    <message>
        <source>中奖结果保存失败,本次抽奖无效,请重新抽取!
</source>
        <translation>The winners could not be saved, this draw does not count. Please draw again!
</translation>
    </message>
    <message>
        <source>您按键太快了(%1秒!!</source>
        <translation>Too fast! Wait %1 s</translation>
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
    <name>EndOfDrawDialog</name>
    <message>
        <source>系统提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>所有的奖项均已经抽取完毕!</source>
        <translation>All the awards have been drawn!</translation>
    </message>
    <message>
        <source>请选择接下来要做的事</source>
        <translation>What would you like to do next?</translation>
    </message>
    <message>
        <source>重新抽奖</source>
        <translation>Start over</translation>
    </message>
    <message>
        <source>导出名单</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>打印名单</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>中奖回放</source>
        <translation>Replay</translation>
    </message>
    <message>
        <source>删除所有中奖信息,重新开始抽奖</source>
        <translation>Delete all the winners and start the draw again</translation>
    </message>
    <message>
        <source>把中奖名单导出为CSV文件</source>
        <translation>Export the winners to a CSV file</translation>
    </message>
    <message>
        <source>打印所有中奖名单</source>
        <translation>Print all the winners</translation>
    </message>
    <message>
        <source>在舞台上滚动播放所有中奖名单</source>
        <translation>Scroll all the winners on the stage</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
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
    <name>FontStyleBox</name>
    <message>
        <source>颜色</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>启用阴影效果</source>
        <translation>Shadow</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>字体：</source>
        <translation>Font:</translation>
    </message>
    <message>
        <source>大小：</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>颜色：</source>
        <translation>Colour:</translation>
    </message>
    <message>
        <source>透明：</source>
        <translation>Opacity:</translation>
    </message>
</context>
<context>
    <name>GiveUpDialog</name>
    <message>
        <source>弃奖</source>
        <translation>Give up</translation>
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
        <source>请输入查询关键字</source>
        <translation>Search for a name</translation>
    </message>
    <message>
        <source>查找名单</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>序号</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>中奖名单</source>
        <translation>Winner</translation>
    </message>
    <message>
        <source>所中奖项</source>
        <translation>Award</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>请勾选需要做弃奖的的名单!</source>
        <translation>Please tick the winners who give up!</translation>
    </message>
    <message>
        <source>确认要将选择的中奖名单做弃奖么?</source>
        <translation>Mark the ticked winners as given up?</translation>
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
    <name>ImageObjectDialog</name>
    <message>
        <source>图片编辑</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>数据库中找不到图片数据!</source>
        <translation>The image is missing from the database!</translation>
    </message>
    <message>
        <source>启用图片倒影</source>
        <translation>Reflection</translation>
    </message>
    <message>
        <source>图片透明：</source>
        <translation>Opacity:</translation>
    </message>
    <message>
        <source>图片设置</source>
        <translation>Image settings</translation>
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
    <name>LoadingScene</name>
    <message>
        <source>正在准备抽奖舞台…</source>
        <translation>Preparing the stage…</translation>
    </message>
</context>
<context>
    <name>MakeUpDrawDialog</name>
    <message>
        <source>补奖</source>
        <translation>Extra draw</translation>
    </message>
    <message>
        <source>快速补奖</source>
        <translation>Quick extra</translation>
    </message>
    <message>
        <source>奖项设置</source>
        <translation>New award</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>(名额)</source>
        <translation>(places)</translation>
    </message>
    <message>
        <source>奖项：</source>
        <translation>Award:</translation>
    </message>
    <message>
        <source>追加：</source>
        <translation>Add:</translation>
    </message>
    <message>
        <source>追加奖项名额必须为正整数!!</source>
        <translation>The places to add must be a positive whole number!</translation>
    </message>
    <message>
        <source>排除已中奖的人</source>
        <translation>Leave out past winners</translation>
    </message>
    <message>
        <source>(禁止重复中奖)</source>
        <translation>(nobody wins twice)</translation>
    </message>
    <message>
        <source>奖项名称：</source>
        <translation>Award name:</translation>
    </message>
    <message>
        <source>奖品名额：</source>
        <translation>Places:</translation>
    </message>
    <message>
        <source>分几次抽：</source>
        <translation>Rounds:</translation>
    </message>
    <message>
        <source>奖品名称：</source>
        <translation>Prize name:</translation>
    </message>
    <message>
        <source>无任何奖项</source>
        <translation>No awards</translation>
    </message>
    <message>
        <source>该奖项现有名额 %1 个，已中奖 %2 人，剩余 %3 个</source>
        <translation>This award has %1 places, %2 won, %3 left</translation>
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
    <name>Page</name>
    <message>
        <source>恭喜∶中奖名单将在这里滚动显示</source>
        <translation>Congratulations: the winners will scroll here</translation>
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
    <name>PlaybackPanel</name>
    <message>
        <source>百分比</source>
        <translation>Percent</translation>
    </message>
    <message>
        <source>滚动播放列表</source>
        <translation>Scroll the list</translation>
    </message>
    <message>
        <source>奖项名称</source>
        <translation>Award name</translation>
    </message>
    <message>
        <source>奖项+奖品名称</source>
        <translation>Award + prize name</translation>
    </message>
    <message>
        <source>设置字体..</source>
        <translation>Font...</translation>
    </message>
    <message>
        <source>抽奖名单</source>
        <translation>Names</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>抽奖名单+图片</source>
        <translation>Names + pictures</translation>
    </message>
    <message>
        <source>整体宽度：</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source>整体高度：</source>
        <translation>Height:</translation>
    </message>
    <message>
        <source>滚动速度：</source>
        <translation>Scroll speed:</translation>
    </message>
    <message>
        <source>横向数量：</source>
        <translation>Columns:</translation>
    </message>
    <message>
        <source>标题内容：</source>
        <translation>Title shows:</translation>
    </message>
    <message>
        <source>文字边距：</source>
        <translation>Text padding:</translation>
    </message>
    <message>
        <source>背景透明：</source>
        <translation>Background opacity:</translation>
    </message>
    <message>
        <source>背景颜色：</source>
        <translation>Background colour:</translation>
    </message>
    <message>
        <source>标题字体：</source>
        <translation>Title font:</translation>
    </message>
    <message>
        <source>名单内容：</source>
        <translation>List shows:</translation>
    </message>
    <message>
        <source>横向间距：</source>
        <translation>Horizontal gap:</translation>
    </message>
    <message>
        <source>纵向间距：</source>
        <translation>Vertical gap:</translation>
    </message>
    <message>
        <source>名单字体：</source>
        <translation>Names font:</translation>
    </message>
    <message>
        <source>标题样式设置</source>
        <translation>Title style</translation>
    </message>
    <message>
        <source>名单样式设置</source>
        <translation>Names style</translation>
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
    <name>ScrollTextDialog</name>
    <message>
        <source>滚动文字属性</source>
        <translation>Scrolling text</translation>
    </message>
    <message>
        <source>中奖信息变量,无法更改!</source>
        <translation>Winners ticker variable, cannot be changed!</translation>
    </message>
    <message>
        <source>文字滚动区域宽(像素)</source>
        <translation>Width of the scrolling area (pixels)</translation>
    </message>
    <message>
        <source>文字滚动区域高(像素)</source>
        <translation>Height of the scrolling area (pixels)</translation>
    </message>
    <message>
        <source>方形背景</source>
        <translation>Square</translation>
    </message>
    <message>
        <source>圆角背景</source>
        <translation>Rounded</translation>
    </message>
    <message>
        <source>设置背景圆角弧度大小</source>
        <translation>Corner radius of the background</translation>
    </message>
    <message>
        <source>从右向左</source>
        <translation>Right to left</translation>
    </message>
    <message>
        <source>从左向右</source>
        <translation>Left to right</translation>
    </message>
    <message>
        <source>从下往上</source>
        <translation>Bottom to top</translation>
    </message>
    <message>
        <source>背景长宽∶</source>
        <translation>Background size:</translation>
    </message>
    <message>
        <source>背景类型：</source>
        <translation>Background:</translation>
    </message>
    <message>
        <source>背景颜色：</source>
        <translation>Background colour:</translation>
    </message>
    <message>
        <source>背景透明：</source>
        <translation>Background opacity:</translation>
    </message>
    <message>
        <source>滚动速度：</source>
        <translation>Scroll speed:</translation>
    </message>
    <message>
        <source>滚动方向：</source>
        <translation>Direction:</translation>
    </message>
    <message>
        <source>滚屏设置</source>
        <translation>Scrolling</translation>
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
    <name>TemplateRestoreDialog</name>
    <message>
        <source>还原模板</source>
        <translation>Restore template</translation>
    </message>
    <message>
        <source>正在清空临时数据...</source>
        <translation>Clearing temporary data...</translation>
    </message>
    <message>
        <source>正在还原备份文件...</source>
        <translation>Restoring the backup file...</translation>
    </message>
</context>
<context>
    <name>TextDialogBase</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>读取数据错误!</source>
        <translation>Could not read the data!</translation>
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
    <name>TextObjectDialog</name>
    <message>
        <source>文字编辑</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>方形边角</source>
        <translation>Square corners</translation>
    </message>
    <message>
        <source>圆形边角</source>
        <translation>Round corners</translation>
    </message>
    <message>
        <source>边框类型：</source>
        <translation>Border type:</translation>
    </message>
    <message>
        <source>边框大小：</source>
        <translation>Border size:</translation>
    </message>
    <message>
        <source>边款颜色：</source>
        <translation>Border colour:</translation>
    </message>
    <message>
        <source>边框透明：</source>
        <translation>Border opacity:</translation>
    </message>
    <message>
        <source>边框设置</source>
        <translation>Border</translation>
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
    <name>VariablesHelpDialog</name>
    <message>
        <source>什么是变量呢?</source>
        <translation>What are variables?</translation>
    </message>
    <message>
        <source>&lt;p&gt;模板里的文字可以带上变量，抽奖时会换成当前奖项的内容：&lt;/p&gt;&lt;p&gt;&lt;b&gt;$Name2&lt;/b&gt;&#x3000;奖项名称，例如“一等奖”&lt;br&gt;&lt;b&gt;$Name1&lt;/b&gt;&#x3000;奖品名称，例如“笔记本电脑”&lt;br&gt;&lt;b&gt;$1&lt;/b&gt;&#x3000;该奖项的名额&lt;br&gt;&lt;b&gt;$2&lt;/b&gt;&#x3000;该奖项还剩下的名额&lt;/p&gt;&lt;p&gt;例如“名额 $1 名，剩余 $2 名”在抽奖时显示为“名额 10 名，剩余 4 名”。&lt;/p&gt;</source>
        <translation>&lt;p&gt;A text in the template can hold variables; during the draw they show the current award:&lt;/p&gt;&lt;p&gt;&lt;b&gt;$Name2&lt;/b&gt;  the award&apos;s name, e.g. “First prize”&lt;br&gt;&lt;b&gt;$Name1&lt;/b&gt;  the prize&apos;s name, e.g. “Laptop”&lt;br&gt;&lt;b&gt;$1&lt;/b&gt;  the award&apos;s places&lt;br&gt;&lt;b&gt;$2&lt;/b&gt;  the places still left&lt;/p&gt;&lt;p&gt;For example “$1 places, $2 left” shows as “10 places, 4 left” during the draw.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>好的,我知道了</source>
        <translation>OK, got it</translation>
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
    <message>
        <source>清除查询关键字</source>
        <translation>Clear the search</translation>
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
    <name>design</name>
    <message>
        <source>演示文字</source>
        <translation>Sample name</translation>
    </message>
    <message>
        <source>中奖者%1</source>
        <translation>Winner %1</translation>
    </message>
    <message>
        <source>一等奖  奖品∶演示奖品</source>
        <translation>First prize  Prize: Sample prize</translation>
    </message>
    <message>
        <source>新增普通文字，双击文字可以进行编辑</source>
        <translation>New text, double-click to edit</translation>
    </message>
    <message>
        <source>请双击输入滚动文字信息...</source>
        <translation>Double-click to enter the scrolling text...</translation>
    </message>
    <message>
        <source>  奖品∶</source>
        <translation>  Prize: </translation>
    </message>
    <message>
        <source>找不到抽奖滚动文字样式数据!</source>
        <translation>The style of the draw&apos;s rolling names is missing!</translation>
    </message>
    <message>
        <source>分辨率宽度需要输入数字</source>
        <translation>The width must be a number</translation>
    </message>
    <message>
        <source>分辨率高度需要输入数字</source>
        <translation>The height must be a number</translation>
    </message>
    <message>
        <source>分辨率宽度最小不低于257px</source>
        <translation>The width must be at least 257px</translation>
    </message>
    <message>
        <source>分辨率高度不能低于177px</source>
        <translation>The height must be at least 177px</translation>
    </message>
    <message>
        <source>分辨率宽度最大不能超过32767px</source>
        <translation>The width cannot exceed 32767px</translation>
    </message>
    <message>
        <source>分辨率高度最大不能超过32767px</source>
        <translation>The height cannot exceed 32767px</translation>
    </message>
    <message>
        <source>找不到原始数据文件无法恢复...</source>
        <translation>The original file is missing, cannot restore...</translation>
    </message>
    <message>
        <source>正在打开备份文件...</source>
        <translation>Opening the backup file...</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>界面数据文件数据异常,请更换模板!</source>
        <translation>The template&apos;s data is damaged, please use another template!</translation>
    </message>
</context>
<context>
    <name>design::DesignerDocument</name>
    <message>
        <source>添加文字</source>
        <translation>Add text</translation>
    </message>
    <message>
        <source>添加滚动文字</source>
        <translation>Add scrolling text</translation>
    </message>
    <message>
        <source>添加图片</source>
        <translation>Add image</translation>
    </message>
    <message>
        <source>添加动画</source>
        <translation>Add animation</translation>
    </message>
    <message>
        <source>坐标数据错误,非数字类型</source>
        <translation>Bad position: not a number</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>隐藏</source>
        <translation>Hide</translation>
    </message>
    <message>
        <source>系统变量不能删除!</source>
        <translation>System items cannot be deleted!</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>上移一层</source>
        <translation>Bring forward</translation>
    </message>
    <message>
        <source>下移一层</source>
        <translation>Send backward</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>样式</source>
        <translation>Style</translation>
    </message>
</context>
<context>
    <name>draw</name>
    <message>
        <source>无法写入抽奖记录</source>
        <translation>Cannot write the draw log</translation>
    </message>
    <message>
        <source>总计∶%1 人, 当前第%2页/共%3页</source>
        <translation>Total: %1, page %2 of %3</translation>
    </message>
    <message>
        <source>已弃奖</source>
        <translation>Given up</translation>
    </message>
    <message>
        <source>已领奖</source>
        <translation>Collected</translation>
    </message>
    <message>
        <source>已中奖</source>
        <translation>Won</translation>
    </message>
    <message>
        <source>至少追加一个名额!</source>
        <translation>Add at least one place!</translation>
    </message>
    <message>
        <source>追加后奖品名额最多为32767个</source>
        <translation>An award can have at most 32767 places</translation>
    </message>
    <message>
        <source>找不到指定的奖项!</source>
        <translation>The award cannot be found!</translation>
    </message>
    <message>
        <source>请输入奖项名称!</source>
        <translation>Please enter the award&apos;s name!</translation>
    </message>
    <message>
        <source>至少存在1个名额</source>
        <translation>At least 1 place</translation>
    </message>
    <message>
        <source>奖品名额最多为32767个</source>
        <translation>At most 32767 places</translation>
    </message>
    <message>
        <source>至少存在1个抽奖批次</source>
        <translation>At least 1 round</translation>
    </message>
    <message>
        <source>抽奖批次最多为32767次</source>
        <translation>At most 32767 rounds</translation>
    </message>
    <message>
        <source>奖品名称不能为空</source>
        <translation>The prize name cannot be empty</translation>
    </message>
    <message>
        <source>奖项编号已到上限32767,不能再增加奖项!</source>
        <translation>Award numbers have reached 32767, no more awards can be added!</translation>
    </message>
</context>
<context>
    <name>draw::DrawEngine</name>
    <message>
        <source>找不到指定的奖项!</source>
        <translation>The award cannot be found!</translation>
    </message>
    <message>
        <source>当前奖项暂无获奖名单...</source>
        <translation>No winners for this award yet...</translation>
    </message>
    <message>
        <source>恭喜∶%1获得%2</source>
        <translation>Congratulations: %1 won %2</translation>
    </message>
    <message>
        <source>当前未设置任何奖项,请先添加奖项!</source>
        <translation>No awards are set up yet, please add an award first!</translation>
    </message>
    <message>
        <source>%1,本次抽奖未进行!</source>
        <translation>%1, this draw did not take place!</translation>
    </message>
    <message>
        <source>已无符合条件的抽奖名单可抽取!</source>
        <translation>Nobody eligible is left to draw!</translation>
    </message>
    <message>
        <source>确定要撤消此次产生的中奖结果么?</source>
        <translation>Undo the winners of this draw?</translation>
    </message>
    <message>
        <source>%1,本次撤消未进行!</source>
        <translation>%1, nothing was undone!</translation>
    </message>
    <message>
        <source>您确定要删除所有中奖信息,重新开始抽奖么?</source>
        <translation>Delete all the winners and start the draw again?</translation>
    </message>
    <message>
        <source>重要提示</source>
        <translation>Important</translation>
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
    <name>preview</name>
    <message>
        <source>一等奖</source>
        <translation>First prize</translation>
    </message>
    <message>
        <source>笔记本电脑</source>
        <translation>Laptop</translation>
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
    <message>
        <source>按 %1 开始抽奖</source>
        <translation>Press %1 to start</translation>
    </message>
    <message>
        <source>按 %1 开始抽奖，再按一次停止</source>
        <translation>Press %1 to start, again to stop</translation>
    </message>
    <message>
        <source>按 %1 开始抽奖，按 %2 停止</source>
        <translation>Press %1 to start, %2 to stop</translation>
    </message>
    <message>
        <source>指纹 %1</source>
        <translation>Fingerprint %1</translation>
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
    <name>verifier</name>
    <message>
        <source>此次抽奖的记录缺失</source>
        <translation>The log of this draw is missing</translation>
    </message>
    <message>
        <source>第%1行无法读取</source>
        <translation>Line %1 cannot be read</translation>
    </message>
    <message>
        <source>记录链在第%1行断开</source>
        <translation>The log&apos;s chain breaks at line %1</translation>
    </message>
    <message>
        <source>第%1行的事件无法识别</source>
        <translation>Line %1 holds an unknown event</translation>
    </message>
    <message>
        <source>会话 %1 的名单快照缺失或无法读取</source>
        <translation>The roster snapshot of session %1 is missing or unreadable</translation>
    </message>
    <message>
        <source>会话 %1 的名单快照已被改动</source>
        <translation>The roster snapshot of session %1 has been changed</translation>
    </message>
    <message>
        <source>抽奖记录无法读取</source>
        <translation>The draw&apos;s record cannot be read</translation>
    </message>
    <message>
        <source>抽奖序号重复或倒退</source>
        <translation>The draw number repeats or goes back</translation>
    </message>
    <message>
        <source>找不到此次抽奖所依据的名单</source>
        <translation>The roster this draw used cannot be found</translation>
    </message>
    <message>
        <source>候选人数不符: 记录%1人, 重建%2人</source>
        <translation>Candidate count differs: logged %1, rebuilt %2</translation>
    </message>
    <message>
        <source>候选名单摘要不符</source>
        <translation>The candidates&apos; digest differs</translation>
    </message>
    <message>
        <source>中奖名单与种子推算的结果不符</source>
        <translation>The winners differ from what the seed gives</translation>
    </message>
    <message>
        <source>入库记录找不到对应的抽奖</source>
        <translation>A stored batch has no matching draw</translation>
    </message>
    <message>
        <source>入库名单与抽出的名单不符</source>
        <translation>The stored winners differ from the drawn ones</translation>
    </message>
    <message>
        <source>撤消记录找不到对应的入库</source>
        <translation>An undo has no matching stored batch</translation>
    </message>
    <message>
        <source>弃奖记录无法读取</source>
        <translation>A give-up record cannot be read</translation>
    </message>
    <message>
        <source>公开的密钥与开场时的承诺不符</source>
        <translation>The revealed key does not match the opening commitment</translation>
    </message>
    <message>
        <source>种子不是由会话密钥推出的</source>
        <translation>The seed does not come from the session key</translation>
    </message>
    <message>
        <source>库中已没有中奖者 %1 的这次中奖</source>
        <translation>The database no longer holds this win of winner %1</translation>
    </message>
    <message>
        <source>库中这一批多出了未记录的中奖者 %1</source>
        <translation>This batch in the database has an unlogged winner %1</translation>
    </message>
    <message>
        <source>找不到抽奖记录 </source>
        <translation>Draw log not found: </translation>
    </message>
    <message>
        <source>会话 %1 第%2次 奖项%3: </source>
        <translation>Session %1 draw %2 award %3: </translation>
    </message>
    <message>
        <source>相符</source>
        <translation>matches</translation>
    </message>
    <message>
        <source>不符</source>
        <translation>differs</translation>
    </message>
    <message>
        <source>已撤消</source>
        <translation>undone</translation>
    </message>
    <message>
        <source>已入库</source>
        <translation>stored</translation>
    </message>
    <message>
        <source>密钥未公开</source>
        <translation>key not revealed</translation>
    </message>
    <message>
        <source>共%1行记录, %2次抽奖: %3次相符, %4次不符</source>
        <translation>%1 log lines, %2 draws: %3 match, %4 differ</translation>
    </message>
    <message>
        <source>, 其中%1次的会话密钥尚未公开(只按记录的种子核对)</source>
        <translation>, of which %1 with the session key not yet revealed (checked against the logged seed only)</translation>
    </message>
    <message>
        <source>结论: 全部相符</source>
        <translation>Verdict: everything matches</translation>
    </message>
    <message>
        <source>结论: 有不符之处</source>
        <translation>Verdict: there are differences</translation>
    </message>
</context>
<context>
    <name>viewer</name>
    <message>
        <source>暂无照片</source>
        <translation>No photo yet</translation>
    </message>
    <message>
        <source>无法显示该图片</source>
        <translation>Cannot show this picture</translation>
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
