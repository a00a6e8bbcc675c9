<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AnalysisActions</name>
    <message>
        <source>&amp;Analysis type</source>
        <translation>分析类型(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Boundary condition</source>
        <translation>边界条件(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Load force</source>
        <translation>力载荷(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;New element property</source>
        <translation>新建单元属性(&amp;N)</translation>
    </message>
    <message>
        <source>Element &amp;properties</source>
        <translation>单元属性(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Material library</source>
        <translation>材料库(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Frequency range</source>
        <translation>频率范围(&amp;F)</translation>
    </message>
    <message>
        <source>Mesh &amp;size</source>
        <translation>网格尺寸(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;ub-shape mesh</source>
        <translation>子形状网格(&amp;U)</translation>
    </message>
    <message>
        <source>Is the set-up &amp;complete?</source>
        <translation>检查设置是否完整(&amp;C)</translation>
    </message>
    <message>
        <source>Chosen material: %1</source>
        <translation>已选择材料：%1</translation>
    </message>
    <message>
        <source>The sub-shape mesh was not taken: its size and number must be numbers</source>
        <translation>子形状网格未采用：其尺寸和数量必须是数字</translation>
    </message>
    <message>
        <source>The set-up is complete</source>
        <translation>设置完整</translation>
    </message>
</context>
<context>
    <name>AnalysisFiles</name>
    <message>
        <source>There is no system library of materials: SysMaterial.xml cannot be written</source>
        <translation>没有系统材料库：无法写入 SysMaterial.xml</translation>
    </message>
</context>
<context>
    <name>DoeSession</name>
    <message>
        <source>Run taken: %1. The other parameters, %2 of them, have their values from before again.</source>
        <translation>已采用该次运行：%1。其余 %2 个参数已恢复为之前的值。</translation>
    </message>
</context>
<context>
    <name>FlangeBuilder</name>
    <message>
        <source>There is no parameter &quot;%1&quot;.</source>
        <translation>没有参数“%1”。</translation>
    </message>
    <message>
        <source>The %1 has no finite value.</source>
        <translation>%1没有有限的值。</translation>
    </message>
    <message>
        <source>The %1 (%2) has to be above 0.</source>
        <translation>%1（%2）必须大于 0。</translation>
    </message>
    <message>
        <source>The %1 (%2 mm) has to be from %3 to %4 mm.</source>
        <translation>%1（%2 mm）必须在 %3 至 %4 mm 之间。</translation>
    </message>
    <message>
        <source>The hub could not be joined to the plate.</source>
        <translation>轮毂无法与法兰盘合并。</translation>
    </message>
    <message>
        <source>The edge between hub and plate was not found for the fillet.</source>
        <translation>未找到轮毂与法兰盘之间用于倒圆的边。</translation>
    </message>
    <message>
        <source>The fillet between hub and plate could not be built.</source>
        <translation>无法生成轮毂与法兰盘之间的圆角。</translation>
    </message>
    <message>
        <source>Bore and bolt holes could not be cut.</source>
        <translation>无法切除中心孔和螺栓孔。</translation>
    </message>
    <message>
        <source>The finished part is no solid.</source>
        <translation>完成的零件不是实体。</translation>
    </message>
    <message>
        <source>The finished part fell into several pieces.</source>
        <translation>完成的零件分成了多块。</translation>
    </message>
    <message>
        <source>The finished part is not closed.</source>
        <translation>完成的零件不封闭。</translation>
    </message>
    <message>
        <source>The finished part is no valid solid.</source>
        <translation>完成的零件不是有效实体。</translation>
    </message>
    <message>
        <source>outer diameter</source>
        <translation>外径</translation>
    </message>
    <message>
        <source>bore</source>
        <translation>中心孔直径</translation>
    </message>
    <message>
        <source>thickness</source>
        <translation>厚度</translation>
    </message>
    <message>
        <source>bolt circle</source>
        <translation>螺栓孔分布圆直径</translation>
    </message>
    <message>
        <source>bolt hole</source>
        <translation>螺栓孔直径</translation>
    </message>
    <message>
        <source>hub diameter</source>
        <translation>轮毂直径</translation>
    </message>
    <message>
        <source>hub height</source>
        <translation>轮毂高度</translation>
    </message>
    <message>
        <source>fillet radius</source>
        <translation>圆角半径</translation>
    </message>
    <message>
        <source>The number of bolt holes (%1) has to be a whole number from 1 to %2.</source>
        <translation>螺栓孔数量（%1）必须是 1 至 %2 的整数。</translation>
    </message>
    <message>
        <source>The bore (%1) is not smaller than the flange (%2).</source>
        <translation>中心孔（%1）不小于法兰（%2）。</translation>
    </message>
    <message>
        <source>The bore (%1) is not smaller than the hub (%2).</source>
        <translation>中心孔（%1）不小于轮毂（%2）。</translation>
    </message>
    <message>
        <source>The hub (%1) is not smaller than the flange (%2).</source>
        <translation>轮毂（%1）不小于法兰（%2）。</translation>
    </message>
    <message>
        <source>The fillet radius (%1) is not smaller than the hub&apos;s height (%2).</source>
        <translation>圆角半径（%1）不小于轮毂高度（%2）。</translation>
    </message>
    <message>
        <source>The fillet around the hub reaches outside the flange.</source>
        <translation>轮毂周围的圆角超出法兰。</translation>
    </message>
    <message>
        <source>The bolt holes (%1 on a circle of %2) reach outside the flange (%3).</source>
        <translation>螺栓孔（%1，分布圆 %2）超出法兰（%3）。</translation>
    </message>
    <message>
        <source>The bolt holes (%1 on a circle of %2) reach into the hub (%3) or its fillet.</source>
        <translation>螺栓孔（%1，分布圆 %2）侵入轮毂（%3）或其圆角。</translation>
    </message>
    <message>
        <source>The bolt holes overlap: %1 of %2 on a circle of %3.</source>
        <translation>螺栓孔相互重叠：%1 个 %2 的孔位于 %3 的分布圆上。</translation>
    </message>
    <message>
        <source>joining hub and plate</source>
        <translation>合并轮毂与法兰盘</translation>
    </message>
    <message>
        <source>cutting bore and bolt holes</source>
        <translation>切除中心孔和螺栓孔</translation>
    </message>
    <message>
        <source>building the fillet</source>
        <translation>生成圆角</translation>
    </message>
    <message>
        <source>checking the finished part</source>
        <translation>检查完成的零件</translation>
    </message>
    <message>
        <source>The geometry kernel failed while %1: %2</source>
        <translation>%1时几何内核失败：%2</translation>
    </message>
</context>
<context>
    <name>HostApplication</name>
    <message>
        <source>%1. What was being done was given up; the application goes on.</source>
        <translation>%1。当前操作已放弃，程序继续运行。</translation>
    </message>
    <message>
        <source>The geometry kernel failed: %1 (%2)</source>
        <translation>几何内核失败：%1（%2）</translation>
    </message>
    <message>
        <source>There is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>An unexpected error: %1</source>
        <translation>意外错误：%1</translation>
    </message>
    <message>
        <source>An unexpected error of an unknown kind</source>
        <translation>未知类型的意外错误</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tarn host</source>
        <translation>Tarn 主程序</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open project</source>
        <translation>打开项目(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Design</source>
        <translation>设计(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Parameters</source>
        <translation>参数(&amp;P)</translation>
    </message>
    <message>
        <source>Design of &amp;Experiments</source>
        <translation>试验设计(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Restore parameters</source>
        <translation>恢复参数(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Analysis</source>
        <translation>分析(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Projects (*.json);;All files (*)</source>
        <translation>项目 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>%1 - Tarn host</source>
        <translation>%1 - Tarn 主程序</translation>
    </message>
    <message>
        <source>Opened the project &quot;%1&quot;</source>
        <translation>已打开项目“%1”</translation>
    </message>
    <message>
        <source>The parameters are as before the design of experiments</source>
        <translation>参数已恢复到试验设计之前的状态</translation>
    </message>
    <message>
        <source>The part was built</source>
        <translation>零件已生成</translation>
    </message>
    <message>
        <source>The part cannot be built: %1</source>
        <translation>无法生成零件：%1</translation>
    </message>
</context>
<context>
    <name>MessageDock</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>次数</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
</context>
<context>
    <name>ModelTree</name>
    <message>
        <source>Static</source>
        <translation>静力</translation>
    </message>
    <message>
        <source>Vibration</source>
        <translation>振动</translation>
    </message>
    <message>
        <source>Buckling</source>
        <translation>屈曲</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>瞬态</translation>
    </message>
    <message>
        <source>Frequency response</source>
        <translation>频率响应</translation>
    </message>
    <message>
        <source>Complex eigenvalue</source>
        <translation>复特征值</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1 (family %2, kind %3)</source>
        <translation>%1（族 %2，类 %3）</translation>
    </message>
    <message>
        <source>holds nothing</source>
        <translation>无约束</translation>
    </message>
    <message>
        <source>holds %1</source>
        <translation>约束 %1</translation>
    </message>
    <message>
        <source>FX = %1, FY = %2, FZ = %3</source>
        <translation>FX = %1，FY = %2，FZ = %3</translation>
    </message>
    <message>
        <source>normal to surface, %1</source>
        <translation>垂直于表面，%1</translation>
    </message>
    <message>
        <source>no type</source>
        <translation>无类型</translation>
    </message>
    <message>
        <source>no material</source>
        <translation>无材料</translation>
    </message>
    <message>
        <source>material %1</source>
        <translation>材料 %1</translation>
    </message>
    <message>
        <source>%1, %2, thickness %3</source>
        <translation>%1，%2，厚度 %3</translation>
    </message>
    <message>
        <source>Analysis model</source>
        <translation>分析模型</translation>
    </message>
    <message>
        <source>&amp;Delete boundary condition or load</source>
        <translation>删除边界条件或载荷(&amp;D)</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>存储值</translation>
    </message>
    <message>
        <source>Analysis type</source>
        <translation>分析类型</translation>
    </message>
    <message>
        <source>Boundary conditions</source>
        <translation>边界条件</translation>
    </message>
    <message>
        <source>Loads</source>
        <translation>载荷</translation>
    </message>
    <message>
        <source>Element properties</source>
        <translation>单元属性</translation>
    </message>
    <message>
        <source>Frequency range</source>
        <translation>频率范围</translation>
    </message>
    <message>
        <source>%1 to %2, %3 points</source>
        <translation>%1 至 %2，%3 个点</translation>
    </message>
    <message>
        <source>Mesh size</source>
        <translation>网格尺寸</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>未设置</translation>
    </message>
    <message>
        <source>Sub-shape mesh</source>
        <translation>子形状网格</translation>
    </message>
    <message>
        <source>size %1, number %2</source>
        <translation>尺寸 %1，数量 %2</translation>
    </message>
</context>
<context>
    <name>ParameterOverview</name>
    <message>
        <source>Bool</source>
        <translation>布尔</translation>
    </message>
    <message>
        <source>Scalar</source>
        <translation>标量</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>矢量</translation>
    </message>
    <message>
        <source>Tensor</source>
        <translation>张量</translation>
    </message>
    <message>
        <source>unknown (%1)</source>
        <translation>未知（%1）</translation>
    </message>
    <message>
        <source>Stored parameters</source>
        <translation>存储的参数</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Raw value</source>
        <translation>原始值</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
</context>
<context>
    <name>ParameterSettler</name>
    <message>
        <source>The expressions need each other: %1</source>
        <translation>表达式相互依赖：%1</translation>
    </message>
    <message>
        <source>%1: its expression uses &quot;%2&quot;, which is no parameter</source>
        <translation>%1：其表达式使用的“%2”不是参数</translation>
    </message>
</context>
<context>
    <name>SetupCheck</name>
    <message>
        <source>Material &quot;%1&quot;: its %2 &quot;%3&quot; is not a number</source>
        <translation>材料“%1”：%2“%3”不是数字</translation>
    </message>
    <message>
        <source>Material &quot;%1&quot;: its %2 %3 is not above 0</source>
        <translation>材料“%1”：%2 %3 不大于 0</translation>
    </message>
    <message>
        <source>elastic modulus</source>
        <translation>弹性模量</translation>
    </message>
    <message>
        <source>Material &quot;%1&quot;: its Poisson&apos;s ratio &quot;%2&quot; is not a number</source>
        <translation>材料“%1”：泊松比“%2”不是数字</translation>
    </message>
    <message>
        <source>Material &quot;%1&quot;: its Poisson&apos;s ratio %2 is outside -1 to 0.5</source>
        <translation>材料“%1”：泊松比 %2 不在 -1 至 0.5 之间</translation>
    </message>
    <message>
        <source>density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>There is no element property</source>
        <translation>没有单元属性</translation>
    </message>
    <message>
        <source>Element property &quot;%1&quot; has no material</source>
        <translation>单元属性“%1”没有材料</translation>
    </message>
    <message>
        <source>Element property &quot;%1&quot;: the library has no material &quot;%2&quot;</source>
        <translation>单元属性“%1”：材料库中没有材料“%2”</translation>
    </message>
    <message>
        <source>Element property &quot;%1&quot;: its thickness %2 is not above 0</source>
        <translation>单元属性“%1”：厚度 %2 不大于 0</translation>
    </message>
    <message>
        <source>Boundary condition &quot;%1&quot; holds nothing</source>
        <translation>边界条件“%1”没有任何约束</translation>
    </message>
    <message>
        <source>Load &quot;%1&quot;: a component is not a number</source>
        <translation>载荷“%1”：有分量不是数字</translation>
    </message>
    <message>
        <source>Load &quot;%1&quot; is zero</source>
        <translation>载荷“%1”为零</translation>
    </message>
    <message>
        <source>Frequency range: %1 to %2 are not numbers</source>
        <translation>频率范围：%1 至 %2 不是数字</translation>
    </message>
    <message>
        <source>Frequency range: the minimum %1 is above the maximum %2</source>
        <translation>频率范围：最小值 %1 大于最大值 %2</translation>
    </message>
    <message>
        <source>The mesh size %1 is not above 0</source>
        <translation>网格尺寸 %1 不大于 0</translation>
    </message>
</context>
<context>
    <name>ShapePicture</name>
    <message>
        <source>The shape cannot be drawn: %1</source>
        <translation>无法绘制形状：%1</translation>
    </message>
</context>
<context>
    <name>ShapeSummary</name>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>体积</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>表面积</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Bounding box</source>
        <translation>包围盒</translation>
    </message>
    <message>
        <source>From, to</source>
        <translation>起点，终点</translation>
    </message>
    <message>
        <source>%1 cm³</source>
        <translation>%1 cm³</translation>
    </message>
    <message>
        <source>%1 cm²</source>
        <translation>%1 cm²</translation>
    </message>
    <message>
        <source>%1 kg</source>
        <translation>%1 kg</translation>
    </message>
    <message>
        <source>%1 × %2 × %3 mm</source>
        <translation>%1 × %2 × %3 mm</translation>
    </message>
    <message>
        <source>(%1, %2, %3), (%4, %5, %6) mm</source>
        <translation>(%1, %2, %3)，(%4, %5, %6) mm</translation>
    </message>
    <message>
        <source>Built at %1</source>
        <translation>生成于 %1</translation>
    </message>
    <message>
        <source>There is no earlier shape.</source>
        <translation>没有更早的形状。</translation>
    </message>
    <message>
        <source>Shown is the last good shape, built at %1.</source>
        <translation>显示的是上一个有效形状，生成于 %1。</translation>
    </message>
    <message>
        <source>Not built: %1
%2</source>
        <translation>未生成：%1
%2</translation>
    </message>
    <message>
        <source>There is no shape yet</source>
        <translation>尚无形状</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
</context>
</TS>
