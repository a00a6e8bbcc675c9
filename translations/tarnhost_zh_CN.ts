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
        <translation>局部网格(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Check Set-up</source>
        <translation>检查设置(&amp;C)</translation>
    </message>
    <message>
        <source>Element p&amp;roperties</source>
        <translation>单元属性(&amp;R)</translation>
    </message>
    <message>
        <source>Chosen material: %1; source: %2</source>
        <translation>所选材料：%1；数据来源：%2</translation>
    </message>
</context>
<context>
    <name>AnalysisDialogs</name>
    <message>
        <source>The force F%1</source>
        <translation>力 F%1</translation>
    </message>
    <message>
        <source>The thickness</source>
        <translation>厚度</translation>
    </message>
    <message>
        <source>The mesh size</source>
        <translation>网格尺寸</translation>
    </message>
    <message>
        <source>A local mesh has either a size in mm or a number of elements along each edge; leave the other field empty</source>
        <translation>局部网格要么有以 mm 为单位的尺寸，要么有每条边的单元数；另一栏请留空</translation>
    </message>
    <message>
        <source>The size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>The number</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>The frequency range stays as it was: %1 Hz is not a finite number; enter a smaller one</source>
        <translation>频率范围保持不变：%1 Hz 不是有限数值；请输入较小的数值</translation>
    </message>
</context>
<context>
    <name>AnalysisFiles</name>
    <message>
        <source>No system library of materials: cannot write SysMaterial.xml</source>
        <translation>没有系统材料库：无法写入 SysMaterial.xml</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>无法写入 %1</translation>
    </message>
</context>
<context>
    <name>AnalysisParameters</name>
    <message>
        <source>mesh size</source>
        <translation>网格尺寸</translation>
    </message>
    <message>
        <source>element property %1</source>
        <translation>单元属性 %1</translation>
    </message>
    <message>
        <source>load %1</source>
        <translation>载荷 %1</translation>
    </message>
    <message>
        <source>local mesh size</source>
        <translation>局部网格尺寸</translation>
    </message>
    <message>
        <source>support %1</source>
        <translation>支撑 %1</translation>
    </message>
</context>
<context>
    <name>AnalysisTargets</name>
    <message>
        <source>Pick faces or edges for %1:</source>
        <translation>为 %1 拾取面或边：</translation>
    </message>
    <message>
        <source>Pick faces, or edges, for %1:</source>
        <translation>为 %1 拾取面，或拾取边：</translation>
    </message>
    <message>
        <source>Pick faces for the shells of %1:</source>
        <translation>为 %1 的壳单元拾取面：</translation>
    </message>
    <message>
        <source>Pick faces or edges for local mesh %1:</source>
        <translation>为局部网格 %1 拾取面或边：</translation>
    </message>
    <message>
        <source>A load acts either on faces or on edges: pick one kind only</source>
        <translation>载荷只能作用于面或边之一：请只拾取一种</translation>
    </message>
</context>
<context>
    <name>AnalysisTexts</name>
    <message>
        <source>; nothing is picked yet</source>
        <translation>；尚未拾取</translation>
    </message>
    <message>
        <source> on %1</source>
        <translation>，位于 %1</translation>
    </message>
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
        <translation>%1（类别 %2，类型 %3）</translation>
    </message>
    <message>
        <source>fixes nothing</source>
        <translation>没有固定任何自由度</translation>
    </message>
    <message>
        <source>fixes %1</source>
        <translation>固定 %1</translation>
    </message>
    <message>
        <source>FX = %1 N, FY = %2 N, FZ = %3 N</source>
        <translation>FX = %1 N，FY = %2 N，FZ = %3 N</translation>
    </message>
    <message>
        <source>no material</source>
        <translation>没有材料</translation>
    </message>
    <message>
        <source>material %1</source>
        <translation>材料 %1</translation>
    </message>
    <message>
        <source>%1, solid elements in the whole part; nothing is picked for shells yet</source>
        <translation>%1，整个零件使用实体单元；尚未为壳单元拾取面</translation>
    </message>
    <message>
        <source>%1, shells %2 mm thick</source>
        <translation>%1，厚 %2 mm 的壳单元</translation>
    </message>
    <message>
        <source>%1 elements along each</source>
        <translation>每条边 %1 个单元</translation>
    </message>
    <message>
        <source>size %1 mm</source>
        <translation>尺寸 %1 mm</translation>
    </message>
    <message>
        <source>%1 Hz to %2 Hz, %3 modes</source>
        <translation>%1 Hz 至 %2 Hz，%3 阶模态</translation>
    </message>
</context>
<context>
    <name>AnalysisTool</name>
    <message>
        <source>%1 is not a program; choose the path of %2, or leave it empty to look in PATH.</source>
        <translation>%1 不是程序；请选择 %2 的路径，或留空以在 PATH 中查找。</translation>
    </message>
    <message>
        <source>The program %1 is missing: install the Debian package %2, or set the path of the program.</source>
        <translation>缺少程序 %1：请安装 Debian 软件包 %2，或设置该程序的路径。</translation>
    </message>
</context>
<context>
    <name>AnalysisTree</name>
    <message>
        <source>Analysis model</source>
        <translation>分析模型</translation>
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
        <source>Mesh size</source>
        <translation>网格尺寸</translation>
    </message>
    <message>
        <source>Local mesh %1</source>
        <translation>局部网格 %1</translation>
    </message>
    <message>
        <source>&amp;Edit entry</source>
        <translation>编辑条目(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Pick faces and edges</source>
        <translation>拾取面和边(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete entry</source>
        <translation>删除条目(&amp;D)</translation>
    </message>
    <message>
        <source>not set: a tenth of the longest side</source>
        <translation>未设置：最长边的十分之一</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Local meshes</source>
        <translation>局部网格</translation>
    </message>
    <message>
        <source>Source of the material</source>
        <translation>材料数据来源</translation>
    </message>
</context>
<context>
    <name>Autosave</name>
    <message>
        <source>The changes are not saved automatically: %1</source>
        <translation>无法自动保存更改：%1</translation>
    </message>
</context>
<context>
    <name>BodyOverlaps</name>
    <message>
        <source>The bodies were not all compared for overlaps; volume and mass may count a region twice.</source>
        <translation>未检查所有实体是否重叠；体积和质量可能重复计算某些区域。</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>; </source>
        <translation>；</translation>
    </message>
    <message>
        <source>Bodies overlap, and volume and mass count the common region twice: %1.</source>
        <translation>实体重叠，体积和质量重复计算公共区域：%1。</translation>
    </message>
    <message>
        <source>Bodies overlap, and volume and mass count the common region twice: %1; there may be more.</source>
        <translation>实体重叠，体积和质量重复计算公共区域：%1；可能还有更多。</translation>
    </message>
    <message>
        <source>The bodies %1 and %2 of the part overlap; fuse them before the analysis.</source>
        <translation>零件的实体 %1 和 %2 重叠；请在分析前用“求和”合并。</translation>
    </message>
    <message>
        <source>The bodies of the part could not all be compared for overlaps; fuse them before the analysis.</source>
        <translation>无法检查零件的所有实体是否重叠；请在分析前用“求和”合并。</translation>
    </message>
</context>
<context>
    <name>BuildError</name>
    <message>
        <source>its direction is zero.</source>
        <translation>其方向为零。</translation>
    </message>
    <message>
        <source>its body is not valid: it may touch or cross itself.</source>
        <translation>其实体无效：可能自相接触或自相交。</translation>
    </message>
    <message>
        <source>the geometry kernel could not combine the bodies.</source>
        <translation>几何内核无法对这些实体进行布尔运算。</translation>
    </message>
    <message>
        <source>nothing is left of the body.</source>
        <translation>运算后实体没有剩余部分。</translation>
    </message>
    <message>
        <source>a fillet of %1 mm cannot be built there; it may be too large for the faces beside the edge.</source>
        <translation>该处无法生成 %1 mm 的圆角；对边两侧的面而言可能过大。</translation>
    </message>
    <message>
        <source>%1 (%2 has no value: %3.)</source>
        <translation>%1（%2 没有值：%3。）</translation>
    </message>
    <message>
        <source>its input %1 is suppressed.</source>
        <translation>它的输入 %1 已被抑制。</translation>
    </message>
    <message>
        <source>the geometry kernel could not build it.</source>
        <translation>几何内核无法生成它。</translation>
    </message>
    <message>
        <source>the geometry kernel could not build it: %1</source>
        <translation>几何内核无法生成它：%1</translation>
    </message>
    <message>
        <source>no input</source>
        <translation>不需要输入</translation>
    </message>
    <message>
        <source>at least %1 inputs</source>
        <translation>至少需要 %1 个输入</translation>
    </message>
    <message>
        <source>one input</source>
        <translation>需要一个输入</translation>
    </message>
    <message>
        <source>a feature of kind &quot;%1&quot; takes %2, but has %3.</source>
        <translation>类型为“%1”的特征%2，但现有 %3 个。</translation>
    </message>
    <message>
        <source>a feature of kind &quot;%1&quot; needs %2 fields, but has %3.</source>
        <translation>类型为“%1”的特征需要 %2 个参数，但现有 %3 个。</translation>
    </message>
    <message>
        <source>the path of the file to import is empty.</source>
        <translation>没有要导入的文件。</translation>
    </message>
    <message>
        <source>a feature of kind &quot;%1&quot; has no file.</source>
        <translation>类型为“%1”的特征不使用文件。</translation>
    </message>
    <message>
        <source>Too many features: %1 (maximum %2).</source>
        <translation>特征过多：%1 个（最多 %2 个）。</translation>
    </message>
    <message>
        <source>the feature has no name.</source>
        <translation>该特征没有名称。</translation>
    </message>
    <message>
        <source>another feature has the same name.</source>
        <translation>另一个特征使用相同的名称。</translation>
    </message>
    <message>
        <source>its input %1 does not exist.</source>
        <translation>它的输入 %1 不存在。</translation>
    </message>
    <message>
        <source>its input %1 is not an earlier feature.</source>
        <translation>它的输入 %1 不是在它之前的特征。</translation>
    </message>
    <message>
        <source>it has the input %1 twice.</source>
        <translation>它的输入 %1 出现了两次。</translation>
    </message>
    <message>
        <source>%1 (%2) has no value: %3.</source>
        <translation>%1（%2）没有值：%3。</translation>
    </message>
    <message>
        <source>%1 is %2, but has to be %3.</source>
        <translation>%1 为 %2，但必须为%3。</translation>
    </message>
    <message>
        <source>the array would have %1 bodies (maximum %2).</source>
        <translation>阵列将有 %1 个实体（最多 %2 个）。</translation>
    </message>
    <message>
        <source>the instances would coincide: the angle between them is %1 degrees.</source>
        <translation>各实例将重合：其夹角为 %1 度。</translation>
    </message>
    <message>
        <source>the instances would coincide: their distance in %1 is %2 mm.</source>
        <translation>各实例将重合：其 %1 方向间距为 %2 mm。</translation>
    </message>
    <message>
        <source>the array would extend more than %1 mm in %2.</source>
        <translation>阵列在 %2 方向上将超出 %1 mm。</translation>
    </message>
    <message>
        <source>angle 1 (%1) has to be below angle 2 (%2).</source>
        <translation>角度 1（%1）必须小于角度 2（%2）。</translation>
    </message>
    <message>
        <source>the sweep radius (%1) has to be below the radius (%2).</source>
        <translation>截面半径（%1）必须小于半径（%2）。</translation>
    </message>
    <message>
        <source>%1 min (%2) has to be below %1 max (%3).</source>
        <translation>%1 最小值（%2）必须小于 %1 最大值（%3）。</translation>
    </message>
    <message>
        <source>its direction lies in the plane of the polygon.</source>
        <translation>其方向位于多边形所在平面内。</translation>
    </message>
    <message>
        <source>%1 edges are too many for a radius of %2 mm.</source>
        <translation>半径为 %2 mm 时，%1 条边过多。</translation>
    </message>
    <message>
        <source>several edges meet at the point %1; choose a point that lies on one edge only.</source>
        <translation>有多条边交于点 %1；请选择只位于其中一条边上的点。</translation>
    </message>
    <message>
        <source>no edge lies at the point %1.</source>
        <translation>点 %1 处没有边。</translation>
    </message>
    <message>
        <source>several faces meet at the point %1; choose a point that lies on one face only.</source>
        <translation>有多个面交于点 %1；请选择只位于其中一个面上的点。</translation>
    </message>
    <message>
        <source>no face lies at the point %1.</source>
        <translation>点 %1 处没有面。</translation>
    </message>
    <message>
        <source>too many bodies to combine: %1 (maximum %2).</source>
        <translation>参与布尔运算的实体过多：%1 个（最多 %2 个）。</translation>
    </message>
    <message>
        <source>this feature would exceed the limit of %1 bodies.</source>
        <translation>此特征将使实体总数超过上限 %1 个。</translation>
    </message>
    <message>
        <source>its result is not a solid body.</source>
        <translation>其结果不是实体。</translation>
    </message>
    <message>
        <source>its body is not closed; change a size or a position slightly.</source>
        <translation>其实体不封闭；请稍微更改尺寸或位置。</translation>
    </message>
    <message>
        <source>its body has a volume of %1 mm³, so it is empty or inside out; change a size or a position slightly.</source>
        <translation>其实体的体积为 %1 mm³，即为空或内外翻转；请稍微更改尺寸或位置。</translation>
    </message>
    <message>
        <source>its result has a volume of %1 mm³, but has to have from %2 to %3 mm³: the geometry kernel failed; change a size or a position slightly.</source>
        <translation>其结果的体积为 %1 mm³，但必须为 %2 至 %3 mm³：几何内核失败；请稍微更改尺寸或位置。</translation>
    </message>
    <message>
        <source>its result extends beyond the original body: the geometry kernel failed; try a smaller radius or another order of features.</source>
        <translation>其结果超出原实体：几何内核失败；请尝试更小的半径或其他特征顺序。</translation>
    </message>
    <message>
        <source>the geometry kernel crashed.</source>
        <translation>几何内核崩溃。</translation>
    </message>
    <message>
        <source>the coordinate %1 of a point has no value: %2.</source>
        <translation>点的坐标 %1 没有值：%2。</translation>
    </message>
    <message>
        <source>the coordinate %1 of a point is %2, but has to be %3.</source>
        <translation>点的坐标 %1 为 %2，但必须为%3。</translation>
    </message>
    <message>
        <source>the part has no face %1.</source>
        <translation>没有面 %1。</translation>
    </message>
    <message>
        <source>the faces %1 and %2 have no edge in common.</source>
        <translation>面 %1 和 %2 没有公共边。</translation>
    </message>
    <message>
        <source>a feature of kind &quot;%1&quot; has no edges.</source>
        <translation>类型为“%1”的特征不使用边。</translation>
    </message>
    <message>
        <source>a feature of kind &quot;%1&quot; has no face.</source>
        <translation>类型为“%1”的特征不使用面。</translation>
    </message>
    <message>
        <source>a feature of kind &quot;%1&quot; needs a profile.</source>
        <translation>类型为“%1”的特征需要轮廓。</translation>
    </message>
    <message>
        <source>a feature of kind &quot;%1&quot; has no profile.</source>
        <translation>类型为“%1”的特征不使用轮廓。</translation>
    </message>
    <message>
        <source>the instances would coincide: a turn of %1 degrees puts a body in the place of another.</source>
        <translation>各实例将重合：旋转 %1 度会使一个实体与另一个实体位置相同。</translation>
    </message>
    <message>
        <source>the bodies have no volume in common.</source>
        <translation>这些实体没有公共体积。</translation>
    </message>
    <message>
        <source>a chamfer of %1 mm cannot be built there; it may be too large for the faces beside the edge.</source>
        <translation>该处无法生成 %1 mm 的倒角；对边两侧的面而言可能过大。</translation>
    </message>
    <message>
        <source>corner %1 of its profile is at the same place as the one before.</source>
        <translation>其轮廓的第 %1 个角点与前一个角点位置相同。</translation>
    </message>
    <message>
        <source>the arc to corner %1 of its profile goes through three points on a line.</source>
        <translation>其轮廓中通往第 %1 个角点的圆弧所经过的三点共线。</translation>
    </message>
    <message>
        <source>its profile has %1 corners, but has to have from 2 to %2.</source>
        <translation>其轮廓有 %1 个角点，但必须有 2 至 %2 个。</translation>
    </message>
    <message>
        <source>its profile is not a closed line.</source>
        <translation>其轮廓不是封闭的线。</translation>
    </message>
    <message>
        <source>its profile does not enclose an area.</source>
        <translation>其轮廓没有围成面积。</translation>
    </message>
    <message>
        <source>its profile extends to x = %1, but has to lie at x = 0 or above: the axis is at x = 0.</source>
        <translation>其轮廓延伸到 x = %1，但必须位于 x = 0 或以上：轴线在 x = 0 处。</translation>
    </message>
    <message>
        <source>the face to mirror at is not flat.</source>
        <translation>用于镜像的面不是平面。</translation>
    </message>
    <message>
        <source>the faces to mirror at do not lie in one plane; name one of them.</source>
        <translation>用于镜像的各面不在同一平面内；请指定其中一个。</translation>
    </message>
    <message>
        <source>The project has no part. Add a body first.</source>
        <translation>项目没有零件。请先添加实体。</translation>
    </message>
</context>
<context>
    <name>BuildLimitsDialog</name>
    <message>
        <source>Limits of building</source>
        <translation>构建限制</translation>
    </message>
    <message>
        <source>The geometry kernel ends a build that exceeds one of these limits.</source>
        <translation>构建超过以下任一限制时将被终止。</translation>
    </message>
    <message>
        <source>&amp;Memory</source>
        <translation>内存(&amp;M)</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>时间(&amp;T)</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
</context>
<context>
    <name>ColumnPicker</name>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
</context>
<context>
    <name>ConvergencePlot</name>
    <message>
        <source>Least so far</source>
        <translation>迄今最小值</translation>
    </message>
    <message>
        <source>Greatest so far</source>
        <translation>迄今最大值</translation>
    </message>
    <message>
        <source>Mean so far</source>
        <translation>迄今平均值</translation>
    </message>
    <message>
        <source>Runs that have ended</source>
        <translation>已结束的试验</translation>
    </message>
    <message>
        <source>Course of</source>
        <translation>过程对象</translation>
    </message>
</context>
<context>
    <name>DeckRun</name>
    <message>
        <source>%1 is missing: let the host mesh or solve the part, which writes it.</source>
        <translation>缺少 %1：请让主程序对零件划分网格或求解，以写入该文件。</translation>
    </message>
    <message>
        <source>%1: the deck cannot be linked</source>
        <translation>%1：无法链接求解文件</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 无法写入</translation>
    </message>
</context>
<context>
    <name>DesignActions</name>
    <message>
        <source>&amp;Parameters</source>
        <translation>参数(&amp;P)</translation>
    </message>
    <message>
        <source>Design of &amp;Experiments</source>
        <translation>试验设计(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Back to the design</source>
        <translation>返回设计(&amp;B)</translation>
    </message>
    <message>
        <source>Remove parameters?</source>
        <translation>删除参数？</translation>
    </message>
    <message>
        <source>They are used by: %1.

Remove these as well?</source>
        <translation>它们被以下对象使用：%1。

是否一并删除？</translation>
    </message>
    <message>
        <source>Remove parameters: %1</source>
        <translation>删除参数：%1</translation>
    </message>
</context>
<context>
    <name>DesignList</name>
    <message>
        <source>has no header with the names of parameters</source>
        <translation>没有写有参数名称的表头</translation>
    </message>
    <message>
        <source>has no runs below its header</source>
        <translation>表头下没有试验</translation>
    </message>
    <message>
        <source>row 1, column %1: %2 is not a parameter of the project</source>
        <translation>第 1 行第 %1 列：%2 不是项目的参数</translation>
    </message>
    <message>
        <source>row 1, column %1: %2 is there twice</source>
        <translation>第 1 行第 %1 列：%2 出现了两次</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>%1: column %2 is missing</source>
        <translation>%1：缺少列 %2</translation>
    </message>
    <message>
        <source>%1 has %2 cells, but the header has %3</source>
        <translation>%1有 %2 个单元格，而表头有 %3 个</translation>
    </message>
    <message>
        <source>%1, column %2: %3 is not a number</source>
        <translation>%1列 %2：%3 不是数</translation>
    </message>
    <message>
        <source>%1 is equal to row %2</source>
        <translation>%1与第 %2 行相同</translation>
    </message>
    <message>
        <source>has more than %1 runs</source>
        <translation>试验超过 %1 次</translation>
    </message>
</context>
<context>
    <name>DesignModel</name>
    <message>
        <source>the project has no parameter %1</source>
        <translation>没有参数 %1</translation>
    </message>
    <message>
        <source>Rename %1 to %2</source>
        <translation>将 %1 重命名为 %2</translation>
    </message>
    <message>
        <source>The parameters are those of the design again</source>
        <translation>参数已恢复为设计值</translation>
    </message>
</context>
<context>
    <name>DialogText</name>
    <message>
        <source>%1: %2 is neither a number nor an expression with a value: %3</source>
        <translation>%1：%2 既不是数值，也不是有值的表达式：%3</translation>
    </message>
</context>
<context>
    <name>DoeSession</name>
    <message>
        <source>Tick %1</source>
        <translation>勾选 %1</translation>
    </message>
    <message>
        <source>Untick %1</source>
        <translation>取消勾选 %1</translation>
    </message>
    <message>
        <source>Samples of %1</source>
        <translation>%1 的样本</translation>
    </message>
    <message>
        <source>Run taken: %1. The other parameters, %2 of them, have their values of the design.</source>
        <translation>已采用试验：%1。其余 %2 个参数取设计值。</translation>
    </message>
</context>
<context>
    <name>EditorSession</name>
    <message>
        <source>The parameter %1 was not changed: %2</source>
        <translation>参数 %1 未更改：%2</translation>
    </message>
    <message>
        <source>Edit parameters</source>
        <translation>编辑参数</translation>
    </message>
</context>
<context>
    <name>FeatureDialogs</name>
    <message>
        <source>%1 has to be %2; %3 was entered</source>
        <translation>%1 必须为%2；输入的是 %3</translation>
    </message>
    <message>
        <source>A direction needs a component other than 0; the dialog stays open</source>
        <translation>方向至少需要一个不为 0 的分量；对话框保持打开</translation>
    </message>
    <message>
        <source>%1: %2 is neither a number nor an expression with a value</source>
        <translation>%1：%2 既不是数值，也不是有值的表达式</translation>
    </message>
</context>
<context>
    <name>FeatureFields</name>
    <message>
        <source>no value</source>
        <translation>无值</translation>
    </message>
    <message>
        <source>Has to be %1</source>
        <translation>必须为%1</translation>
    </message>
    <message>
        <source>Fields of the feature</source>
        <translation>特征参数</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Number or expression</source>
        <translation>数值或表达式</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Select a feature in the tree, or click it in the view, to edit its fields here. The menu &quot;Model&quot; adds features.</source>
        <translation>在特征树中选择一个特征，或在视图中单击它，即可在此编辑其参数。“建模”菜单用于添加特征。</translation>
    </message>
    <message>
        <source>At face</source>
        <translation>所在面</translation>
    </message>
    <message>
        <source>At edges</source>
        <translation>所在边</translation>
    </message>
    <message>
        <source>Corner %1</source>
        <translation>角点 %1</translation>
    </message>
    <message>
        <source>New corner</source>
        <translation>新角点</translation>
    </message>
    <message>
        <source>x; y, or x; y; via x; via y for an arc that leads to the corner</source>
        <translation>x; y；对于通向该角点的圆弧，则为 x; y; 途经 x; 途经 y</translation>
    </message>
</context>
<context>
    <name>FeatureKinds</name>
    <message>
        <source>Direction x</source>
        <translation>方向 x</translation>
    </message>
    <message>
        <source>Direction y</source>
        <translation>方向 y</translation>
    </message>
    <message>
        <source>Direction z</source>
        <translation>方向 z</translation>
    </message>
    <message>
        <source>Point on axis x</source>
        <translation>轴上点 x</translation>
    </message>
    <message>
        <source>Point on axis y</source>
        <translation>轴上点 y</translation>
    </message>
    <message>
        <source>Point on axis z</source>
        <translation>轴上点 z</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>半径</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Angle 1</source>
        <translation>角度 1</translation>
    </message>
    <message>
        <source>Angle 2</source>
        <translation>角度 2</translation>
    </message>
    <message>
        <source>Angle 3</source>
        <translation>角度 3</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>长方体</translation>
    </message>
    <message>
        <source>Size x</source>
        <translation>尺寸 x</translation>
    </message>
    <message>
        <source>Size y</source>
        <translation>尺寸 y</translation>
    </message>
    <message>
        <source>Size z</source>
        <translation>尺寸 z</translation>
    </message>
    <message>
        <source>Cylinder</source>
        <translation>圆柱体</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>球体</translation>
    </message>
    <message>
        <source>Torus</source>
        <translation>圆环体</translation>
    </message>
    <message>
        <source>Sweep radius</source>
        <translation>截面半径（管半径）</translation>
    </message>
    <message>
        <source>Truncated cone</source>
        <translation>圆台</translation>
    </message>
    <message>
        <source>Base radius</source>
        <translation>底面半径</translation>
    </message>
    <message>
        <source>Top radius</source>
        <translation>顶面半径</translation>
    </message>
    <message>
        <source>Wedge</source>
        <translation>楔体</translation>
    </message>
    <message>
        <source>Base x</source>
        <translation>底面 x</translation>
    </message>
    <message>
        <source>Base z</source>
        <translation>底面 z</translation>
    </message>
    <message>
        <source>X min</source>
        <translation>X 最小值</translation>
    </message>
    <message>
        <source>X max</source>
        <translation>X 最大值</translation>
    </message>
    <message>
        <source>Z min</source>
        <translation>Z 最小值</translation>
    </message>
    <message>
        <source>Z max</source>
        <translation>Z 最大值</translation>
    </message>
    <message>
        <source>Extruded polygon</source>
        <translation>拉伸多边形</translation>
    </message>
    <message>
        <source>Number of edges</source>
        <translation>边数</translation>
    </message>
    <message>
        <source>Extrude length</source>
        <translation>拉伸长度</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Distance x</source>
        <translation>距离 x</translation>
    </message>
    <message>
        <source>Distance y</source>
        <translation>距离 y</translation>
    </message>
    <message>
        <source>Distance z</source>
        <translation>距离 z</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Mirror at a point</source>
        <translation>关于点镜像</translation>
    </message>
    <message>
        <source>Point x</source>
        <translation>点 x</translation>
    </message>
    <message>
        <source>Point y</source>
        <translation>点 y</translation>
    </message>
    <message>
        <source>Point z</source>
        <translation>点 z</translation>
    </message>
    <message>
        <source>Mirror at an axis</source>
        <translation>关于轴镜像</translation>
    </message>
    <message>
        <source>Mirror at a face</source>
        <translation>关于面镜像</translation>
    </message>
    <message>
        <source>Point on face x</source>
        <translation>面上点 x</translation>
    </message>
    <message>
        <source>Point on face y</source>
        <translation>面上点 y</translation>
    </message>
    <message>
        <source>Point on face z</source>
        <translation>面上点 z</translation>
    </message>
    <message>
        <source>Polar array</source>
        <translation>圆周阵列</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Rectangular array</source>
        <translation>矩形阵列</translation>
    </message>
    <message>
        <source>Number in x</source>
        <translation>X 方向数量</translation>
    </message>
    <message>
        <source>Number in y</source>
        <translation>Y 方向数量</translation>
    </message>
    <message>
        <source>Distance in x</source>
        <translation>X 方向间距</translation>
    </message>
    <message>
        <source>Distance in y</source>
        <translation>Y 方向间距</translation>
    </message>
    <message>
        <source>Fuse</source>
        <translation>求和</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>求差</translation>
    </message>
    <message>
        <source>Fillet</source>
        <translation>圆角</translation>
    </message>
    <message>
        <source>Point on edge x</source>
        <translation>边上点 x</translation>
    </message>
    <message>
        <source>Point on edge y</source>
        <translation>边上点 y</translation>
    </message>
    <message>
        <source>Point on edge z</source>
        <translation>边上点 z</translation>
    </message>
    <message>
        <source>STEP import</source>
        <translation>STEP 导入</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>求交</translation>
    </message>
    <message>
        <source>Move x</source>
        <translation>移动 x</translation>
    </message>
    <message>
        <source>Move y</source>
        <translation>移动 y</translation>
    </message>
    <message>
        <source>Move z</source>
        <translation>移动 z</translation>
    </message>
    <message>
        <source>Turn about x</source>
        <translation>绕 x 旋转</translation>
    </message>
    <message>
        <source>Turn about y</source>
        <translation>绕 y 旋转</translation>
    </message>
    <message>
        <source>Turn about z</source>
        <translation>绕 z 旋转</translation>
    </message>
    <message>
        <source>Chamfer</source>
        <translation>倒角</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>距离</translation>
    </message>
    <message>
        <source>Extruded profile</source>
        <translation>拉伸轮廓</translation>
    </message>
    <message>
        <source>Revolved profile</source>
        <translation>旋转轮廓</translation>
    </message>
</context>
<context>
    <name>FeaturePlacing</name>
    <message>
        <source>Click the face to mirror at, or press Escape to cancel</source>
        <translation>请单击用作镜像面的面，或按 Esc 键取消</translation>
    </message>
    <message>
        <source>Pick edges for %1:</source>
        <translation>为%1拾取边：</translation>
    </message>
</context>
<context>
    <name>FeatureTextError</name>
    <message>
        <source>%1 is not a corner: write &quot;x; y&quot;, or &quot;x; y; via x; via y&quot; for an arc that leads to it</source>
        <translation>%1 不是角点：请输入“x; y”，对于通向该角点的圆弧，请输入“x; y; 途经 x; 途经 y”</translation>
    </message>
    <message>
        <source>%1 is not a face: write its name, such as &quot;box.zmax&quot;, or a point on it, such as &quot;(0, 0, 10)&quot;</source>
        <translation>%1 不是面：请输入面的名称，例如“box.zmax”，或面上的一点，例如“(0, 0, 10)”</translation>
    </message>
    <message>
        <source>%1 is not an edge: write its two faces, such as &quot;box.zmax | box.xmax&quot;, or a point on it, such as &quot;(0, 0, 10)&quot;</source>
        <translation>%1 不是边：请输入它的两个面，例如“box.zmax | box.xmax”，或边上的一点，例如“(0, 0, 10)”</translation>
    </message>
</context>
<context>
    <name>FeatureTree</name>
    <message>
        <source>of %1</source>
        <translation>源自 %1</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>特征</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特征</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Made from</source>
        <translation>构成</translation>
    </message>
    <message>
        <source>at %1</source>
        <translation>位于 %1</translation>
    </message>
</context>
<context>
    <name>FieldRule</name>
    <message>
        <source>above %1 and at most %2</source>
        <translation>大于 %1 且不大于 %2</translation>
    </message>
    <message>
        <source>at least %1 and below %2</source>
        <translation>不小于 %1 且小于 %2</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation> %1 至 %2</translation>
    </message>
    <message>
        <source>0 or %1</source>
        <translation> 0 或%1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 degrees</source>
        <translation>%1 度</translation>
    </message>
    <message>
        <source>a whole number %1</source>
        <translation>%1 的整数</translation>
    </message>
</context>
<context>
    <name>HostApplication</name>
    <message>
        <source>%1. The operation was cancelled; you can continue working.</source>
        <translation>%1。操作已取消，可以继续工作。</translation>
    </message>
    <message>
        <source>The geometry kernel failed: %1 (%2)</source>
        <translation>几何内核失败：%1（%2）</translation>
    </message>
    <message>
        <source>An unexpected error: %1</source>
        <translation>意外错误：%1</translation>
    </message>
    <message>
        <source>An unknown error occurred</source>
        <translation>发生未知错误</translation>
    </message>
    <message>
        <source>The program ran out of memory</source>
        <translation>程序内存不足</translation>
    </message>
</context>
<context>
    <name>HostPrograms</name>
    <message>
        <source>Programs of this host</source>
        <translation>本主程序的程序</translation>
    </message>
    <message>
        <source>&amp;Mesher gmsh</source>
        <translation>网格程序 gmsh(&amp;M)</translation>
    </message>
    <message>
        <source>the one in PATH</source>
        <translation>PATH 中的程序</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>&amp;Solver CalculiX</source>
        <translation>求解器 CalculiX(&amp;S)</translation>
    </message>
    <message>
        <source>ccx in PATH</source>
        <translation>PATH 中的 ccx</translation>
    </message>
</context>
<context>
    <name>JsonError</name>
    <message>
        <source>must be an object</source>
        <translation>必须是对象</translation>
    </message>
    <message>
        <source>has the unknown entry %1</source>
        <translation>有未知条目 %1</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>has no &quot;%1&quot;</source>
        <translation>缺少“%1”</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>a list of numbers</source>
        <translation>数值列表</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>文本列表</translation>
    </message>
    <message>
        <source>has a &quot;%1&quot; that is not %2</source>
        <translation>的“%1”不是%2</translation>
    </message>
    <message>
        <source>condition %1</source>
        <translation>条件 %1</translation>
    </message>
    <message>
        <source>%1 in its &quot;fields&quot;</source>
        <translation>%1 的“fields”</translation>
    </message>
    <message>
        <source>a number or an expression</source>
        <translation>数值或表达式</translation>
    </message>
    <message>
        <source>feature %1</source>
        <translation>特征 %1</translation>
    </message>
    <message>
        <source>%1, %2,</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>has the unknown kind %1</source>
        <translation>的类型 %1 未知</translation>
    </message>
    <message>
        <source>has neither &quot;value&quot; nor &quot;expression&quot;</source>
        <translation>既没有“value”也没有“expression”</translation>
    </message>
    <message>
        <source>a list of three numbers</source>
        <translation>由三个数值组成的列表</translation>
    </message>
    <message>
        <source>parameter %1</source>
        <translation>参数 %1</translation>
    </message>
    <message>
        <source>has the unknown type %1</source>
        <translation>的类型 %1 未知</translation>
    </message>
    <message>
        <source>has a &quot;max&quot; that is not above &quot;min&quot;</source>
        <translation>的“max”不大于“min”</translation>
    </message>
    <message>
        <source>has a &quot;delta&quot; that is not above 0</source>
        <translation>的“delta”不大于 0</translation>
    </message>
    <message>
        <source>has a &quot;delta&quot; that is greater than the range</source>
        <translation>的“delta”大于取值范围</translation>
    </message>
    <message>
        <source>has more than a million samples</source>
        <translation>的样本超过一百万个</translation>
    </message>
    <message>
        <source>the sample list of %1 %2</source>
        <translation>%1 的样本列表%2</translation>
    </message>
    <message>
        <source>has a range without limits</source>
        <translation>的范围没有界限</translation>
    </message>
    <message>
        <source>has Gauss spacing, which is not implemented</source>
        <translation>采用高斯间隔，尚未实现</translation>
    </message>
    <message>
        <source>sample list %1</source>
        <translation>样本列表 %1</translation>
    </message>
    <message>
        <source>has both &quot;values&quot; and &quot;%1&quot;</source>
        <translation>同时有“values”和“%1”</translation>
    </message>
    <message>
        <source>has no values</source>
        <translation>没有值</translation>
    </message>
    <message>
        <source>has the unknown spacing %1</source>
        <translation>的间隔方式 %1 未知</translation>
    </message>
    <message>
        <source>is not valid JSON: %1 at byte %2</source>
        <translation>不是有效的 JSON：%1，位于第 %2 字节</translation>
    </message>
    <message>
        <source>the project</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>above 0</source>
        <translation>大于 0 的数</translation>
    </message>
    <message>
        <source>has two parameters %1</source>
        <translation>有两个参数 %1</translation>
    </message>
    <message>
        <source>has two sample lists for %1</source>
        <translation>有 %1 的两个样本列表</translation>
    </message>
    <message>
        <source>the project cannot be saved: %1</source>
        <translation>无法保存项目：%1</translation>
    </message>
    <message>
        <source>&quot;frequencies&quot; of the analysis</source>
        <translation>分析的“frequencies”</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>property %1</source>
        <translation>属性 %1</translation>
    </message>
    <message>
        <source>has faces, but no &quot;thickness&quot;</source>
        <translation>有面，但没有“thickness”</translation>
    </message>
    <message>
        <source>constraint %1</source>
        <translation>约束 %1</translation>
    </message>
    <message>
        <source>holds the unknown degree of freedom %1</source>
        <translation>固定了未知的自由度 %1</translation>
    </message>
    <message>
        <source>load %1</source>
        <translation>载荷 %1</translation>
    </message>
    <message>
        <source>has both &quot;faces&quot; and &quot;edges&quot;; a load acts on either</source>
        <translation>同时含有“faces”和“edges”；载荷只能作用于其中之一</translation>
    </message>
    <message>
        <source>local mesh %1</source>
        <translation>局部网格 %1</translation>
    </message>
    <message>
        <source>needs either a &quot;size&quot; or a &quot;number&quot;</source>
        <translation>需要“size”或“number”之一</translation>
    </message>
    <message>
        <source>has a &quot;number&quot;, which is for edges only, and &quot;faces&quot;</source>
        <translation>含有只适用于边的“number”，又含有“faces”</translation>
    </message>
    <message>
        <source>has the name %1 twice in %2</source>
        <translation>在 %2 中有两个名称 %1</translation>
    </message>
    <message>
        <source>the analysis</source>
        <translation>分析</translation>
    </message>
    <message>
        <source>a list of three numbers or expressions</source>
        <translation>由三个数值或表达式组成的列表</translation>
    </message>
    <message>
        <source>%1 entry %2 of &quot;%3&quot;</source>
        <translation>%1“%3”的第 %2 项</translation>
    </message>
    <message>
        <source>%1 is an empty name of a face</source>
        <translation>%1 的面名称为空</translation>
    </message>
    <message>
        <source>needs either &quot;between&quot; or &quot;at&quot;</source>
        <translation>需要“between”或“at”之一</translation>
    </message>
    <message>
        <source>a list of two faces</source>
        <translation>由两个面组成的列表</translation>
    </message>
    <message>
        <source>the project is of version %1; this program reads versions up to %2</source>
        <translation>项目的版本为 %1；本程序可读取的最高版本为 %2</translation>
    </message>
    <message>
        <source>1 or %1</source>
        <translation>1 或 %1</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1 至 %2 的整数</translation>
    </message>
    <message>
        <source>has the unknown design %1</source>
        <translation>含有未知的试验设计 %1</translation>
    </message>
    <message>
        <source>needs &quot;runs&quot;, the number of runs of its design</source>
        <translation>需要“runs”，即试验设计的试验次数</translation>
    </message>
    <message>
        <source>needs &quot;file&quot;, the CSV file with its list of runs</source>
        <translation>需要“file”，即列出试验的 CSV 文件</translation>
    </message>
    <message>
        <source>has the unknown analysis %1</source>
        <translation>含有未知的分析 %1</translation>
    </message>
    <message>
        <source>response %1</source>
        <translation>响应 %1</translation>
    </message>
    <message>
        <source>has two responses %1</source>
        <translation>有两个响应 %1</translation>
    </message>
    <message>
        <source>the study</source>
        <translation>研究</translation>
    </message>
    <message>
        <source>has &quot;%1&quot;, but the feature names its place already</source>
        <translation>含有“%1”，但该特征已指定其位置</translation>
    </message>
    <message>
        <source>%1 corner %2 of &quot;%3&quot;</source>
        <translation>%1“%3”的第 %2 个角点</translation>
    </message>
    <message>
        <source>needs &quot;x&quot; and &quot;y&quot;</source>
        <translation>需要“x”和“y”</translation>
    </message>
    <message>
        <source>needs both &quot;viaX&quot; and &quot;viaY&quot;, or none of them</source>
        <translation>“viaX”和“viaY”必须同时给出或都不给出</translation>
    </message>
    <message>
        <source>a list of at least one edge</source>
        <translation>至少含一条边的列表</translation>
    </message>
    <message>
        <source>%1 its &quot;%2&quot;</source>
        <translation>%1 的“%2”</translation>
    </message>
    <message>
        <source>the clipboard</source>
        <translation>剪贴板</translation>
    </message>
    <message>
        <source>is of the unknown type %1</source>
        <translation>的类型 %1 未知</translation>
    </message>
    <message>
        <source>The clipboard has no copied features. Copy features first.</source>
        <translation>剪贴板中没有已复制的特征。请先复制特征。</translation>
    </message>
    <message>
        <source>has samples for %1, which is not a parameter</source>
        <translation>有 %1 的样本，但它不是参数</translation>
    </message>
</context>
<context>
    <name>KernelMessages</name>
    <message>
        <source>The geometry kernel: %1</source>
        <translation>几何内核：%1</translation>
    </message>
</context>
<context>
    <name>KernelWorker</name>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>The process of the geometry kernel cannot be started: %1</source>
        <translation>无法启动几何内核进程：%1</translation>
    </message>
    <message>
        <source>The build was cancelled.</source>
        <translation>构建已取消。</translation>
    </message>
    <message>
        <source>the geometry kernel did not finish within %1, the time limit.</source>
        <translation>几何内核未能在时间限制 %1 内完成。</translation>
    </message>
    <message>
        <source>The finished part: %1</source>
        <translation>完成的零件：%1</translation>
    </message>
</context>
<context>
    <name>MainEffectsPlot</name>
    <message>
        <source>Effects on</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>Mean of %1</source>
        <translation>%1 的平均值</translation>
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
        <source>&amp;Design</source>
        <translation>设计(&amp;D)</translation>
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
        <source>The part was built</source>
        <translation>零件已生成</translation>
    </message>
    <message>
        <source>The part cannot be built: %1</source>
        <translation>无法生成零件：%1</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>建模(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Solver</source>
        <translation>求解器(&amp;S)</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Lengths in mm, angles in degrees, forces in N, masses in kg</source>
        <translation>长度单位 mm，角度单位度，力单位 N，质量单位 kg</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>S&amp;tudy</source>
        <translation>研究(&amp;T)</translation>
    </message>
</context>
<context>
    <name>MaterialError</name>
    <message>
        <source>The material &quot;%1&quot; is neither in the system&apos;s library nor in UserMaterial.xml beside the project.</source>
        <translation>系统材料库和项目旁的 UserMaterial.xml 中都没有材料“%1”。</translation>
    </message>
    <message>
        <source>Material &quot;%1&quot;: the %2 &quot;%3&quot; is not a number.</source>
        <translation>材料“%1”：%2“%3”不是数值。</translation>
    </message>
    <message>
        <source>Material &quot;%1&quot;: the %2 %3 must be greater than 0.</source>
        <translation>材料“%1”：%2 %3 必须大于 0。</translation>
    </message>
    <message>
        <source>elastic modulus</source>
        <translation>弹性模量</translation>
    </message>
    <message>
        <source>Poisson&apos;s ratio</source>
        <translation>泊松比</translation>
    </message>
    <message>
        <source>Material &quot;%1&quot;: Poisson&apos;s ratio %2 is not between -1 and 0.5.</source>
        <translation>材料“%1”：泊松比 %2 不在 -1 与 0.5 之间。</translation>
    </message>
    <message>
        <source>density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>a material of yours, in UserMaterial.xml</source>
        <translation>用户材料，位于 UserMaterial.xml</translation>
    </message>
</context>
<context>
    <name>MeasureTool</name>
    <message>
        <source>&amp;Measure</source>
        <translation>测量(&amp;M)</translation>
    </message>
    <message>
        <source>Pick one or two faces or edges to measure:</source>
        <translation>拾取一个或两个面或边进行测量：</translation>
    </message>
    <message>
        <source>Nothing was measured: pick one or two faces or edges</source>
        <translation>未进行测量：请拾取一个或两个面或边</translation>
    </message>
</context>
<context>
    <name>MeshError</name>
    <message>
        <source>The file of the mesh is damaged or not complete.</source>
        <translation>网格文件已损坏或不完整。</translation>
    </message>
    <message>
        <source>The mesh has elements of the unknown kind %1.</source>
        <translation>网格含有未知类型 %1 的单元。</translation>
    </message>
    <message>
        <source>The mesh has no elements.</source>
        <translation>网格没有单元。</translation>
    </message>
    <message>
        <source>The file of the mesh %1</source>
        <translation>网格文件 %1</translation>
    </message>
</context>
<context>
    <name>MeshEstimate</name>
    <message>
        <source>The mesh of size %1 mm would have about %2 degrees of freedom; the limit is %3. A mesh size of %4 mm would fit.</source>
        <translation>网格尺寸 %1 mm 约有 %2 个自由度；上限为 %3。网格尺寸 %4 mm 可行。</translation>
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
    <message>
        <source>No longer so: %1</source>
        <translation>已不再如此：%1</translation>
    </message>
</context>
<context>
    <name>ModelError</name>
    <message>
        <source>%1: the %2 (%3) has no value: %4.</source>
        <translation>%1：%2（%3）没有值：%4。</translation>
    </message>
    <message>
        <source>%1: the %2 is %3, but has to be greater than 0.</source>
        <translation>%1：%2 为 %3，但必须大于 0。</translation>
    </message>
    <message>
        <source>%1: the %2 is %3, but has to be a whole number from 1 to %4.</source>
        <translation>%1：%2 为 %3，但必须是 1 到 %4 的整数。</translation>
    </message>
    <message>
        <source>The mesh</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>The element property &quot;%1&quot;</source>
        <translation>单元属性“%1”</translation>
    </message>
    <message>
        <source>thickness</source>
        <translation>厚度</translation>
    </message>
    <message>
        <source>The boundary condition &quot;%1&quot;</source>
        <translation>边界条件“%1”</translation>
    </message>
    <message>
        <source>The load &quot;%1&quot;</source>
        <translation>载荷“%1”</translation>
    </message>
    <message>
        <source>force</source>
        <translation>力</translation>
    </message>
    <message>
        <source>A local mesh</source>
        <translation>局部网格</translation>
    </message>
    <message>
        <source>number of elements</source>
        <translation>单元数</translation>
    </message>
    <message>
        <source>The part has no material.</source>
        <translation>零件没有材料。</translation>
    </message>
    <message>
        <source>The element properties %1 and %2 both hold for the whole part: delete one of them, or give it faces.</source>
        <translation>单元属性 %1 与 %2 都作用于整个零件：请删除其中一个，或为其指定面。</translation>
    </message>
    <message>
        <source>The element property %1 has no faces, but others have: one model has either shells or solids.</source>
        <translation>单元属性 %1 没有面，而其他属性有面：一个模型只能全为壳或全为实体。</translation>
    </message>
    <message>
        <source>The element properties %1 and %2 have a face in common.</source>
        <translation>单元属性 %1 与 %2 有公共的面。</translation>
    </message>
    <message>
        <source>The mesh has shells on a face without a property.</source>
        <translation>网格在没有属性的面上有壳单元。</translation>
    </message>
    <message>
        <source>The element property %1 has no elements.</source>
        <translation>单元属性 %1 没有单元。</translation>
    </message>
    <message>
        <source>%1 is on a face or an edge without elements: give the face an element property, or choose another one.</source>
        <translation>%1 位于没有单元的面或边上：请为该面指定单元属性，或另选面或边。</translation>
    </message>
    <message>
        <source>%1 has no faces and no edges.</source>
        <translation>%1 没有面也没有边。</translation>
    </message>
    <message>
        <source>%1 fixes no degree of freedom.</source>
        <translation>%1 未约束任何自由度。</translation>
    </message>
    <message>
        <source>%1 has no effect: solids have no rotations to hold.</source>
        <translation>%1 不起作用：实体没有可约束的转动自由度。</translation>
    </message>
    <message>
        <source>%1: holding rotations has no effect on solids.</source>
        <translation>%1：约束转动对实体不起作用。</translation>
    </message>
    <message>
        <source>%1 needs either faces or edges.</source>
        <translation>%1 需要面或边，且只能是其中一种。</translation>
    </message>
    <message>
        <source>The part</source>
        <translation>零件</translation>
    </message>
    <message>
        <source>Body %1</source>
        <translation>实体 %1</translation>
    </message>
    <message>
        <source>%1 is %2: add supports.</source>
        <translation>%1 %2：请添加支撑。</translation>
    </message>
    <message>
        <source>All nodes are held, so nothing can move: hold fewer faces, or make the mesh finer.</source>
        <translation>所有节点都已被约束，无法运动：请减少约束的面，或加密网格。</translation>
    </message>
    <message>
        <source>The mesh has too few nodes for a mode: make it finer.</source>
        <translation>网格节点太少，无法计算模态：请加密网格。</translation>
    </message>
    <message>
        <source>body %1 (%2)</source>
        <translation>实体 %1（%2）</translation>
    </message>
    <message>
        <source>The bodies touch without being joined: %1 and %2. Fuse them, or leave a gap.</source>
        <translation>实体相互接触但未连接：%1 与 %2。请用“求和”将它们合并，或留出间隙。</translation>
    </message>
    <message>
        <source>The set-up has no load, so nothing moves. Add a load first.</source>
        <translation>分析设置中没有载荷，因此不会产生位移。请先添加载荷。</translation>
    </message>
</context>
<context>
    <name>OpenGlSupport</name>
    <message>
        <source>the system does not provide OpenGL</source>
        <translation>系统不提供 OpenGL</translation>
    </message>
</context>
<context>
    <name>OptimumPage</name>
    <message>
        <source>Optimum of</source>
        <translation>优化目标</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>目标方向</translation>
    </message>
    <message>
        <source>as small as possible</source>
        <translation>尽可能小</translation>
    </message>
    <message>
        <source>as large as possible</source>
        <translation>尽可能大</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>寻优</translation>
    </message>
    <message>
        <source>Verify by a run</source>
        <translation>用一次试验验证</translation>
    </message>
    <message>
        <source>Make this the design</source>
        <translation>设为设计</translation>
    </message>
    <message>
        <source>Type limits, and press Find. An optimum is predicted by quadratic surfaces over the runs that are shown; a run verifies it.</source>
        <translation>输入限制并单击“寻优”。最优点由所示试验的二次响应面预测，再由一次试验验证。</translation>
    </message>
    <message>
        <source>An optimum cannot be found: %1</source>
        <translation>无法找到最优点：%1</translation>
    </message>
    <message>
        <source>no parameter varies</source>
        <translation>没有变化的参数</translation>
    </message>
    <message>
        <source>the runs have no value of the parameter &quot;%1&quot;</source>
        <translation>试验中没有参数“%1”的值</translation>
    </message>
    <message>
        <source>Predicted by quadratic surfaces over %1 runs.</source>
        <translation>由 %1 次试验的二次响应面预测。</translation>
    </message>
    <message>
        <source>Run %1 verifies it: compare the last columns.</source>
        <translation>试验 %1 对它作了验证：请比较最后几列。</translation>
    </message>
    <message>
        <source>Run %1 failed: %2</source>
        <translation>试验 %1 失败：%2</translation>
    </message>
</context>
<context>
    <name>OptimumTable</name>
    <message>
        <source>Limits and optimum</source>
        <translation>限制与最优点</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>不小于</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>不大于</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Predicted</source>
        <translation>预测值</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>误差</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>试验</translation>
    </message>
    <message>
        <source>Whole numbers only</source>
        <translation>只取整数</translation>
    </message>
    <message>
        <source>The usual error of predictions for runs that the surface has not seen</source>
        <translation>对响应面未用过的试验，预测的通常误差</translation>
    </message>
    <message>
        <source>the limit %1 of %2 is not a number; type a number or nothing</source>
        <translation>%2 的限制 %1 不是数；请输入一个数或留空</translation>
    </message>
    <message>
        <source>Run %1</source>
        <translation>试验 %1</translation>
    </message>
</context>
<context>
    <name>ParallelPlot</name>
    <message>
        <source>Drag along an axis to select a range; click on it to take that back</source>
        <translation>沿坐标轴拖动以选择范围；单击坐标轴则取消</translation>
    </message>
    <message>
        <source>Choose two columns or more.</source>
        <translation>请选择两列或更多列。</translation>
    </message>
</context>
<context>
    <name>ParameterError</name>
    <message>
        <source>%1 is not a type of parameter</source>
        <translation>没有类型 %1</translation>
    </message>
    <message>
        <source>there are more than %1 rows</source>
        <translation>超过 %1 行</translation>
    </message>
    <message>
        <source>there are two parameters %1</source>
        <translation>有两个参数 %1</translation>
    </message>
    <message>
        <source>row %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 不是数值</translation>
    </message>
    <message>
        <source>%1 is neither &quot;true&quot; nor &quot;false&quot;</source>
        <translation>%1 既不是“true”也不是“false”</translation>
    </message>
    <message>
        <source>%1 is not a vector: type three numbers with commas between them</source>
        <translation>%1 不是矢量：请输入以逗号分隔的三个数值</translation>
    </message>
    <message>
        <source>a value is missing: type a number or an expression</source>
        <translation>缺少值：请输入数值或表达式</translation>
    </message>
    <message>
        <source>%1 is not a name: it has to begin with a letter, and letters, digits and underscores may follow</source>
        <translation>%1 不是有效名称：必须以字母开头，后面可以是字母、数字和下划线</translation>
    </message>
    <message>
        <source>there is already a parameter %1</source>
        <translation>已有参数 %1</translation>
    </message>
</context>
<context>
    <name>ParameterPanel</name>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>表格 (*.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>&amp;New parameter</source>
        <translation>新建参数(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove parameters</source>
        <translation>删除参数(&amp;R)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;down</source>
        <translation>下移(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Import CSV</source>
        <translation>导入 CSV(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Export CSV</source>
        <translation>导出 CSV(&amp;E)</translation>
    </message>
    <message>
        <source>New parameter</source>
        <translation>新建参数</translation>
    </message>
    <message>
        <source>Move parameters</source>
        <translation>移动参数</translation>
    </message>
    <message>
        <source>Paste parameters</source>
        <translation>粘贴参数</translation>
    </message>
    <message>
        <source>No parameters were taken: %1</source>
        <translation>未采用任何参数：%1</translation>
    </message>
    <message>
        <source>Import parameters</source>
        <translation>导入参数</translation>
    </message>
    <message>
        <source>Export parameters</source>
        <translation>导出参数</translation>
    </message>
    <message>
        <source>Wrote %1</source>
        <translation>已写入 %1</translation>
    </message>
</context>
<context>
    <name>ParameterRemoval</name>
    <message>
        <source>parameter %1</source>
        <translation>参数 %1</translation>
    </message>
    <message>
        <source>feature %1</source>
        <translation>特征 %1</translation>
    </message>
    <message>
        <source>condition %1</source>
        <translation>条件 %1</translation>
    </message>
</context>
<context>
    <name>ParameterTable</name>
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
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Number or expression</source>
        <translation>数值或表达式</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>No expression can use a parameter of this name</source>
        <translation>任何表达式都不能使用此名称的参数</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>修改 %1</translation>
    </message>
    <message>
        <source>not taken: %1</source>
        <translation>未采用：%1</translation>
    </message>
    <message>
        <source>The parameter was not changed: %1</source>
        <translation>参数未更改：%1</translation>
    </message>
</context>
<context>
    <name>PartActions</name>
    <message>
        <source>&amp;Edit feature</source>
        <translation>编辑特征(&amp;E)</translation>
    </message>
    <message>
        <source>Move &amp;up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move do&amp;wn</source>
        <translation>下移(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Suppress</source>
        <translation>抑制(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Delete feature</source>
        <translation>删除特征(&amp;D)</translation>
    </message>
    <message>
        <source>E&amp;xport STEP</source>
        <translation>导出 STEP(&amp;X)</translation>
    </message>
    <message>
        <source>Add &amp;body</source>
        <translation>添加实体(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Import STEP</source>
        <translation>导入 STEP(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Transform</source>
        <translation>变换(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Combine</source>
        <translation>布尔运算(&amp;C)</translation>
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
        <source>Mirror</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>%1 takes one body, but %2 features are selected</source>
        <translation>%1只能用于一个实体，但选中了 %2 个特征</translation>
    </message>
    <message>
        <source>%1 needs a body, but there is none</source>
        <translation>%1需要一个实体，但没有实体</translation>
    </message>
    <message>
        <source>%1 needs two bodies, but there are not enough</source>
        <translation>%1需要两个实体，但实体不足</translation>
    </message>
    <message>
        <source>Wrote %1</source>
        <translation>已写入 %1</translation>
    </message>
    <message>
        <source>&amp;Limits of building</source>
        <translation>构建限制(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Copy features</source>
        <translation>复制特征(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste features</source>
        <translation>粘贴特征(&amp;P)</translation>
    </message>
    <message>
        <source>The 3D view is not available: type a point on the face into the fields of %1</source>
        <translation>三维视图不可用：请在 %1 的参数中输入面上一点</translation>
    </message>
    <message>
        <source>The part has no shape to export. Add or correct a body first.</source>
        <translation>零件没有可导出的形状。请先添加或更正实体。</translation>
    </message>
</context>
<context>
    <name>PartModel</name>
    <message>
        <source>The part has no feature %1</source>
        <translation>没有特征 %1</translation>
    </message>
    <message>
        <source>Add %1 %2</source>
        <translation>添加%1 %2</translation>
    </message>
    <message>
        <source>%1 is not a valid name: it contains a comma</source>
        <translation>%1 不能用作名称：其中有逗号</translation>
    </message>
    <message>
        <source>%1 is not a valid name: it begins or ends with a blank</source>
        <translation>%1 不能用作名称：首尾有空格</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>修改 %1</translation>
    </message>
    <message>
        <source>Rename %1 to %2</source>
        <translation>将 %1 重命名为 %2</translation>
    </message>
    <message>
        <source>Move %1 up</source>
        <translation>上移 %1</translation>
    </message>
    <message>
        <source>Move %1 down</source>
        <translation>下移 %1</translation>
    </message>
    <message>
        <source>Cannot move %1. %2</source>
        <translation>无法移动 %1。%2</translation>
    </message>
    <message>
        <source>Suppress %1</source>
        <translation>抑制 %1</translation>
    </message>
    <message>
        <source>Unsuppress %1</source>
        <translation>取消抑制 %1</translation>
    </message>
    <message>
        <source>Cannot delete %1: it is used by %2</source>
        <translation>无法删除 %1：它被 %2 使用</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>the part was changed meanwhile</source>
        <translation>零件在此期间已更改</translation>
    </message>
    <message>
        <source>the part could not be built</source>
        <translation>无法构建零件</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>正在写入 %1</translation>
    </message>
    <message>
        <source>Building %1, %2 of %3</source>
        <translation>正在构建 %1，第 %2 个，共 %3 个</translation>
    </message>
    <message>
        <source>Measuring the part</source>
        <translation>正在测量零件</translation>
    </message>
    <message>
        <source>The export failed: %1</source>
        <translation>导出失败：%1</translation>
    </message>
    <message>
        <source>Paste %1</source>
        <translation>粘贴 %1</translation>
    </message>
</context>
<context>
    <name>PartPanel</name>
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
        <translation>最小角点，最大角点</translation>
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
        <source>Showing the last valid shape, built at %1.</source>
        <translation>显示的是上一个有效形状，生成于 %1。</translation>
    </message>
    <message>
        <source>Not built: %1
%2</source>
        <translation>未生成：%1
%2</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>The part is shown as a line drawing: %1</source>
        <translation>零件以线条图显示：%1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Centre of mass</source>
        <translation>质心</translation>
    </message>
    <message>
        <source>Inertia</source>
        <translation>转动惯量</translation>
    </message>
    <message>
        <source>(%1, %2, %3) mm</source>
        <translation>(%1, %2, %3) mm</translation>
    </message>
    <message>
        <source>Ixx %1, Iyy %2, Izz %3 kg·mm²</source>
        <translation>Ixx %1，Iyy %2，Izz %3 kg·mm²</translation>
    </message>
    <message>
        <source>Moments of inertia about axes through the centre of mass, parallel to x, y and z.
Products of inertia ∫xy dm, ∫xz dm, ∫yz dm about the same axes: %1, %2, %3 kg·mm²</source>
        <translation>绕过质心且平行于 x、y、z 的轴的转动惯量。
同一组轴的惯性积 ∫xy dm、∫xz dm、∫yz dm：%1、%2、%3 kg·mm²</translation>
    </message>
    <message>
        <source>The part has no earlier shape.</source>
        <translation>零件没有更早的形状。</translation>
    </message>
    <message>
        <source>The part has no shape yet</source>
        <translation>零件尚无形状</translation>
    </message>
</context>
<context>
    <name>PartView</name>
    <message>
        <source>The 3D view cannot show this: %1</source>
        <translation>三维视图无法显示：%1</translation>
    </message>
</context>
<context>
    <name>PickedMeasures</name>
    <message>
        <source>Radius: %1 mm, diameter: %2 mm</source>
        <translation>半径：%1 mm，直径：%2 mm</translation>
    </message>
    <message>
        <source>Length: %1 mm</source>
        <translation>长度：%1 mm</translation>
    </message>
    <message>
        <source>Area: %1 mm²</source>
        <translation>面积：%1 mm²</translation>
    </message>
    <message>
        <source>Distance: %1 mm</source>
        <translation>距离：%1 mm</translation>
    </message>
    <message>
        <source>Angle: %1°</source>
        <translation>角度：%1°</translation>
    </message>
</context>
<context>
    <name>PositionDock</name>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Position: %1 is &quot;%2&quot;, not a number from %3 to %4</source>
        <translation>位置：%1 为“%2”，不是 %3 至 %4 的数值</translation>
    </message>
</context>
<context>
    <name>ProjectActions</name>
    <message>
        <source>Projects (*.json);;All files (*)</source>
        <translation>项目 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>&amp;Open project</source>
        <translation>打开项目(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save project</source>
        <translation>保存项目(&amp;S)</translation>
    </message>
    <message>
        <source>Save project &amp;as</source>
        <translation>项目另存为(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>%1[*] - Tarn host</source>
        <translation>%1[*] - Tarn 主程序</translation>
    </message>
    <message>
        <source>Opened the project &quot;%1&quot;</source>
        <translation>已打开项目“%1”</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>打开项目</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>保存项目</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>已保存为 %1</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>保存更改？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changes that are not saved.</source>
        <translation>“%1”有未保存的更改。</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>还原(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;New project</source>
        <translation>新建项目(&amp;N)</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近的项目(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Project properties</source>
        <translation>项目属性(&amp;P)</translation>
    </message>
    <message>
        <source>%1 is open in another window, too: who saves last replaces what the other one has saved</source>
        <translation>%1 也在另一个窗口中打开：后保存者会覆盖先保存的内容</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changes of %2 that were not saved before the program ended. Recover them?</source>
        <translation>“%1”有 %2 的更改在程序结束前未保存。是否恢复？</translation>
    </message>
    <message>
        <source>Recover changes?</source>
        <translation>恢复更改？</translation>
    </message>
    <message>
        <source>Changes that were saved automatically cannot be recovered: %1</source>
        <translation>无法恢复自动保存的更改：%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of %2 was never saved before the program ended. Recover it?</source>
        <translation>%2 的“%1”在程序结束前从未保存。是否恢复？</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>新项目</translation>
    </message>
    <message>
        <source>The project is empty: start with a body of the menu &quot;Model&quot; or with a parameter</source>
        <translation>项目为空：请从“建模”菜单中的实体或从参数开始</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>暂无</translation>
    </message>
    <message>
        <source>Revert?</source>
        <translation>还原？</translation>
    </message>
    <message>
        <source>All changes since the project was saved will be lost, and cannot be undone.</source>
        <translation>自上次保存以来的所有更改都将丢失，且无法撤销。</translation>
    </message>
    <message>
        <source>%1 of this project was not saved: %2 has another one</source>
        <translation>此项目的 %1 未保存：%2 中已有另一个同名文件</translation>
    </message>
    <message>
        <source>%1 - %2[*] - Tarn host</source>
        <translation>%1 - %2[*] - Tarn host</translation>
    </message>
    <message>
        <source>%1. The project stays open with its changes; &quot;Save project as&quot; saves it elsewhere.</source>
        <translation>%1。项目及其更改仍保持打开；可用“项目另存为”保存到其他位置。</translation>
    </message>
</context>
<context>
    <name>ProjectProperties</name>
    <message>
        <source>Project properties</source>
        <translation>项目属性</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>标题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Material</source>
        <translation>材料(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Density without a material, kg/m³</source>
        <translation>无材料时的密度 (kg/m³)(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Conditions that the parameters have to meet</source>
        <translation>参数必须满足的条件(&amp;C)</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Message if it does not hold</source>
        <translation>不满足时的消息</translation>
    </message>
    <message>
        <source>&amp;Add condition</source>
        <translation>添加条件(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove condition</source>
        <translation>删除条件(&amp;R)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>The density %1 is not a number above 0.</source>
        <translation>密度 %1 不是大于 0 的数值。</translation>
    </message>
    <message>
        <source>The condition with the message %1 has no expression.</source>
        <translation>消息为 %1 的条件没有表达式。</translation>
    </message>
    <message>
        <source>The condition %1 does not hold.</source>
        <translation>条件 %1 不满足。</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>条件</translation>
    </message>
</context>
<context>
    <name>ProjectSession</name>
    <message>
        <source>Analysis set-up</source>
        <translation>分析设置</translation>
    </message>
    <message>
        <source>Recover changes</source>
        <translation>恢复更改</translation>
    </message>
    <message>
        <source>Project properties</source>
        <translation>项目属性</translation>
    </message>
</context>
<context>
    <name>ResponseSurface</name>
    <message>
        <source>a quadratic surface over these parameters needs at least %1 runs with a result; there are %2</source>
        <translation>这些参数上的二次响应面至少需要 %1 次有结果的试验；现有 %2 次</translation>
    </message>
    <message>
        <source>a quadratic surface over so many parameters and runs is too large; choose fewer parameters</source>
        <translation>参数和试验这么多，二次响应面过大；请少选一些参数</translation>
    </message>
    <message>
        <source>a quadratic surface needs at least three different values of &quot;%1&quot;</source>
        <translation>二次响应面要求“%1”至少有三个不同的值</translation>
    </message>
    <message>
        <source>the runs do not determine a quadratic surface; some parameters change only together</source>
        <translation>这些试验不能确定二次响应面；有些参数总是一起变化</translation>
    </message>
</context>
<context>
    <name>ResponseTable</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Responses</source>
        <translation>响应</translation>
    </message>
    <message>
        <source>Remove a response</source>
        <translation>删除响应</translation>
    </message>
</context>
<context>
    <name>ResultColumns</name>
    <message>
        <source>has %1 cells instead of %2</source>
        <translation>有 %1 个单元格，应为 %2 个</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the column run is not the number of a run</source>
        <translation>run 列中的“%1”不是试验编号</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the column status is neither ok nor failed</source>
        <translation>status 列中的“%1”既不是 ok 也不是 failed</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the column %2 is not a number</source>
        <translation>%2 列中的“%1”不是数</translation>
    </message>
</context>
<context>
    <name>ResultDisplay</name>
    <message>
        <source>&amp;Show</source>
        <translation>显示(&amp;S)</translation>
    </message>
    <message>
        <source>Mesh &amp;lines</source>
        <translation>网格线(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Deformation</source>
        <translation>变形(&amp;D)</translation>
    </message>
    <message>
        <source>The largest displacement as it is drawn, as a share of the size of the part</source>
        <translation>绘制的最大位移占零件尺寸的比例</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>&amp;Animate</source>
        <translation>动画(&amp;A)</translation>
    </message>
    <message>
        <source>Export &amp;picture</source>
        <translation>导出图片(&amp;P)</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>零件</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Displacement</source>
        <translation>位移</translation>
    </message>
    <message>
        <source>Von Mises stress</source>
        <translation>冯·米塞斯应力</translation>
    </message>
    <message>
        <source>von Mises (MPa)</source>
        <translation>von Mises (MPa)</translation>
    </message>
    <message>
        <source>Displacement (mm)</source>
        <translation>位移 (mm)</translation>
    </message>
    <message>
        <source>Relative displacement</source>
        <translation>相对位移</translation>
    </message>
    <message>
        <source>Results are not drawn: %1</source>
        <translation>结果不绘制：%1</translation>
    </message>
    <message>
        <source>This mode is not drawn: there are too many.</source>
        <translation>此模态不绘制：模态过多。</translation>
    </message>
    <message>
        <source>Mode %1 at %2 Hz. The scale of a mode is arbitrary.</source>
        <translation>模态 %1，%2 Hz。模态的比例是任意的。</translation>
    </message>
    <message>
        <source>Greatest stress %1 MPa</source>
        <translation>最大应力 %1 MPa</translation>
    </message>
    <message>
        <source>Greatest displacement %1 mm</source>
        <translation>最大位移 %1 mm</translation>
    </message>
    <message>
        <source>%1 near %2 mm, marked. Displacements are drawn %3 times as large.</source>
        <translation>%1，位于 %2 mm 附近，已标记。位移放大 %3 倍绘制。</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>导出图片</translation>
    </message>
    <message>
        <source>Pictures (*.png);;All files (*)</source>
        <translation>图片 (*.png);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>已导出到 %1</translation>
    </message>
    <message>
        <source>Results are not drawn: the 3D view is not available.</source>
        <translation>结果不绘制：三维视图不可用。</translation>
    </message>
</context>
<context>
    <name>ResultError</name>
    <message>
        <source>The solver&apos;s table of modes is damaged.</source>
        <translation>求解器的模态表已损坏。</translation>
    </message>
    <message>
        <source>The solver&apos;s results do not belong to this mesh.</source>
        <translation>求解器的结果不属于此网格。</translation>
    </message>
    <message>
        <source>The solver&apos;s file has no results.</source>
        <translation>求解器的文件没有结果。</translation>
    </message>
    <message>
        <source>The solver&apos;s file of results is damaged or not complete.</source>
        <translation>求解器的结果文件已损坏或不完整。</translation>
    </message>
    <message>
        <source>The solver reports an error: %1</source>
        <translation>求解器报告错误：%1</translation>
    </message>
    <message>
        <source>The solver ended before its job was finished.</source>
        <translation>求解器在作业完成前已结束。</translation>
    </message>
    <message>
        <source>The part cannot be meshed: %1</source>
        <translation>零件无法划分网格：%1</translation>
    </message>
    <message>
        <source>The solver found %1 of %2 modes.</source>
        <translation>求解器找到了 %2 个模态中的 %1 个。</translation>
    </message>
</context>
<context>
    <name>ResultTable</name>
    <message>
        <source>Nodes</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>单元</translation>
    </message>
    <message>
        <source>Worst element</source>
        <translation>最差单元</translation>
    </message>
    <message>
        <source>Greatest displacement</source>
        <translation>最大位移</translation>
    </message>
    <message>
        <source>Greatest von Mises stress</source>
        <translation>最大冯·米塞斯应力</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模态</translation>
    </message>
    <message>
        <source>Frequency (Hz)</source>
        <translation>频率 (Hz)</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>量</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Place (mm)</source>
        <translation>位置 (mm)</translation>
    </message>
    <message>
        <source>Mesh: %1 nodes, %2 elements; the Jacobian of the worst element falls to %3 of its greatest value, near %4 mm</source>
        <translation>网格：%1 个节点，%2 个单元；最差单元的雅可比降至其最大值的 %3 倍，位于 %4 mm 附近</translation>
    </message>
    <message>
        <source>Support force along x</source>
        <translation>沿 x 的支座力</translation>
    </message>
    <message>
        <source>Support force along y</source>
        <translation>沿 y 的支座力</translation>
    </message>
    <message>
        <source>Support force along z</source>
        <translation>沿 z 的支座力</translation>
    </message>
    <message>
        <source>x (kg)</source>
        <translation>x (kg)</translation>
    </message>
    <message>
        <source>y (kg)</source>
        <translation>y (kg)</translation>
    </message>
    <message>
        <source>z (kg)</source>
        <translation>z (kg)</translation>
    </message>
    <message>
        <source>Effective mass of the motion in this direction; rotations about the axes have no column</source>
        <translation>沿该方向运动的有效质量；绕各轴转动的有效质量不列出</translation>
    </message>
</context>
<context>
    <name>ResultsDock</name>
    <message>
        <source>Natural frequencies: none in the range of frequencies</source>
        <translation>固有频率：频率范围内没有</translation>
    </message>
    <message>
        <source>Natural frequencies</source>
        <translation>固有频率</translation>
    </message>
    <message>
        <source>Displacements and stresses under the loads</source>
        <translation>载荷下的位移与应力</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>No results yet</source>
        <translation>尚无结果</translation>
    </message>
    <message>
        <source>Export table</source>
        <translation>导出表格</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>表格 (*.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>已导出到 %1</translation>
    </message>
</context>
<context>
    <name>ResultsFile</name>
    <message>
        <source>is not a table of results; it has no column &quot;%1&quot;</source>
        <translation>不是结果表；没有“%1”列</translation>
    </message>
    <message>
        <source>is not a table of results; its first column has to be &quot;run&quot;, its last ones &quot;status&quot; and &quot;error&quot;</source>
        <translation>不是结果表；第一列必须是“run”，最后两列必须是“status”和“error”</translation>
    </message>
    <message>
        <source>two columns have the same name</source>
        <translation>有两列同名</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>row %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
</context>
<context>
    <name>ResultsPanel</name>
    <message>
        <source>Old: the part or its set-up has changed since. Solve again.</source>
        <translation>已过时：零件或其设置此后已更改。请重新求解。</translation>
    </message>
    <message>
        <source>&amp;Export table</source>
        <translation>导出表格(&amp;E)</translation>
    </message>
    <message>
        <source>Results of the analysis</source>
        <translation>分析结果</translation>
    </message>
</context>
<context>
    <name>RigidMotions</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>free to move along %1</source>
        <translation>可沿 %1 移动</translation>
    </message>
    <message>
        <source>free to turn about %1</source>
        <translation>可绕 %1 转动</translation>
    </message>
    <message>
        <source>free to move along %1 and to turn about %2</source>
        <translation>可沿 %1 移动并可绕 %2 转动</translation>
    </message>
</context>
<context>
    <name>RunBar</name>
    <message>
        <source>The part is a run of the experiments. Saving the project saves the design.</source>
        <translation>当前零件是一次试验。保存项目时保存的是设计。</translation>
    </message>
    <message>
        <source>Back to the design</source>
        <translation>返回设计</translation>
    </message>
</context>
<context>
    <name>RunList</name>
    <message>
        <source>%1: is not a list of the runs of this study</source>
        <translation>%1：不是本研究的试验列表</translation>
    </message>
    <message>
        <source>%1: row %2 is damaged</source>
        <translation>%1：第 %2 行已损坏</translation>
    </message>
</context>
<context>
    <name>RunLocks</name>
    <message>
        <source>%1: cannot be locked: %2</source>
        <translation>%1：无法锁定：%2</translation>
    </message>
</context>
<context>
    <name>SampleTable</name>
    <message>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>To</source>
        <translation>到</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>步长</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>样本</translation>
    </message>
    <message>
        <source>%1, %2 in the design</source>
        <translation>%1，设计中为 %2</translation>
    </message>
    <message>
        <source>Samples of %1</source>
        <translation>%1 的样本</translation>
    </message>
    <message>
        <source>Tick %1</source>
        <translation>勾选 %1</translation>
    </message>
    <message>
        <source>Untick %1</source>
        <translation>取消勾选 %1</translation>
    </message>
    <message>
        <source>%1 is not a list of samples: type numbers with commas between them, such as 60, 65.5, 70</source>
        <translation>%1 不是样本列表：请输入以英文逗号分隔的数，例如 60, 65.5, 70</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 不是数</translation>
    </message>
    <message>
        <source>The range of %1 %2</source>
        <translation>%1 的范围%2</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
</context>
<context>
    <name>ScatterMatrix</name>
    <message>
        <source>No column varies yet.</source>
        <translation>尚无变化的列。</translation>
    </message>
</context>
<context>
    <name>ScatterPlot</name>
    <message>
        <source>Across</source>
        <translation>横轴</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>纵轴</translation>
    </message>
    <message>
        <source>Pareto front</source>
        <translation>帕累托前沿</translation>
    </message>
    <message>
        <source>Aim across</source>
        <translation>横轴目标</translation>
    </message>
    <message>
        <source>least across</source>
        <translation>横轴最小</translation>
    </message>
    <message>
        <source>greatest across</source>
        <translation>横轴最大</translation>
    </message>
    <message>
        <source>Aim upwards</source>
        <translation>纵轴目标</translation>
    </message>
    <message>
        <source>least upwards</source>
        <translation>纵轴最小</translation>
    </message>
    <message>
        <source>greatest upwards</source>
        <translation>纵轴最大</translation>
    </message>
</context>
<context>
    <name>SetupCheck</name>
    <message>
        <source>Frequency range: %1 to %2 are not numbers</source>
        <translation>频率范围：%1 至 %2 不是数值</translation>
    </message>
    <message>
        <source>%1 (&quot;%2&quot;) has no value: %3</source>
        <translation>%1（“%2”）没有值：%3</translation>
    </message>
    <message>
        <source>%1 is %2 %3, but has to be greater than 0</source>
        <translation>%1 为 %2 %3，但必须大于 0</translation>
    </message>
    <message>
        <source>This kind of analysis cannot be solved here: choose vibration or static</source>
        <translation>此处无法求解该类分析：请选择振动或静力</translation>
    </message>
    <message>
        <source>The part has no material: choose one, or define an element property</source>
        <translation>零件没有材料：请选择材料，或定义单元属性</translation>
    </message>
    <message>
        <source>Element property &quot;%1&quot;</source>
        <translation>单元属性“%1”</translation>
    </message>
    <message>
        <source>%1 has no material</source>
        <translation>%1 没有材料</translation>
    </message>
    <message>
        <source>%1: the thickness</source>
        <translation>%1：厚度</translation>
    </message>
    <message>
        <source>%1 is not used: it has no faces, but other properties do</source>
        <translation>%1 未被使用：它没有面，而其他属性有</translation>
    </message>
    <message>
        <source>%1 is not used: another property already applies to the whole part</source>
        <translation>%1 未被使用：另一属性已应用于整个零件</translation>
    </message>
    <message>
        <source>A static analysis needs a boundary condition</source>
        <translation>静力分析需要边界条件</translation>
    </message>
    <message>
        <source>A static analysis needs a load</source>
        <translation>静力分析需要载荷</translation>
    </message>
    <message>
        <source>Load &quot;%1&quot;</source>
        <translation>载荷“%1”</translation>
    </message>
    <message>
        <source>%1: the force F%2</source>
        <translation>%1：力 F%2</translation>
    </message>
    <message>
        <source>%1 is zero</source>
        <translation>%1 为零</translation>
    </message>
    <message>
        <source>%1 acts nowhere: pick its faces or edges</source>
        <translation>%1 没有作用位置：请拾取面或边</translation>
    </message>
    <message>
        <source>%1 has no effect on natural frequencies</source>
        <translation>%1 对固有频率没有影响</translation>
    </message>
    <message>
        <source>Frequency range: the minimum %1 Hz is below 0</source>
        <translation>频率范围：最小值 %1 Hz 小于 0</translation>
    </message>
    <message>
        <source>Frequency range: the minimum %1 Hz is not below the maximum %2 Hz</source>
        <translation>频率范围：最小值 %1 Hz 不小于最大值 %2 Hz</translation>
    </message>
    <message>
        <source>Frequency range: the number of modes is %1, but has to be 1 to %2</source>
        <translation>频率范围：模态数为 %1，但必须为 1 至 %2</translation>
    </message>
    <message>
        <source>No mesh size is set: a tenth of the part&apos;s longest side is used</source>
        <translation>未设置网格尺寸：使用零件最长边的十分之一</translation>
    </message>
    <message>
        <source>The mesh size</source>
        <translation>网格尺寸</translation>
    </message>
    <message>
        <source>The mesh size %1 mm is larger than the part, %2 mm</source>
        <translation>网格尺寸 %1 mm 大于零件的 %2 mm</translation>
    </message>
    <message>
        <source>Local mesh %1</source>
        <translation>局部网格 %1</translation>
    </message>
    <message>
        <source>%1: the size</source>
        <translation>%1：尺寸</translation>
    </message>
    <message>
        <source>%1: the number</source>
        <translation>%1：数量</translation>
    </message>
    <message>
        <source>%1 applies nowhere: pick its faces or edges</source>
        <translation>%1 没有应用位置：请拾取面或边</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of an entry: what is wrong</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The part cannot be built: %1</source>
        <translation>无法构建零件：%1</translation>
    </message>
    <message>
        <source>Boundary condition &quot;%1&quot;</source>
        <translation>边界条件“%1”</translation>
    </message>
    <message>
        <source>%1 fixes no degree of freedom</source>
        <translation>%1 没有固定任何自由度</translation>
    </message>
    <message>
        <source>The project has no part. Add a body first.</source>
        <translation>项目没有零件。请先添加实体。</translation>
    </message>
</context>
<context>
    <name>SetupCheckDock</name>
    <message>
        <source>Set-up check</source>
        <translation>设置检查</translation>
    </message>
    <message>
        <source>The set-up was not checked yet.</source>
        <translation>尚未检查设置。</translation>
    </message>
    <message>
        <source>Set-up check: problems: %1, warnings: %2</source>
        <translation>设置检查：问题 %1 个，警告 %2 个</translation>
    </message>
    <message>
        <source>The set-up has changed since it was checked: check it again.</source>
        <translation>检查之后设置已更改：请重新检查。</translation>
    </message>
    <message>
        <source>The check of the set-up found no problems</source>
        <translation>分析设置检查未发现问题</translation>
    </message>
</context>
<context>
    <name>ShapePicker</name>
    <message>
        <source>&amp;Done</source>
        <translation>完成(&amp;D)</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清除(&amp;L)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Click in the view; click again to take back.</source>
        <translation>请在视图中单击；再次单击可取消。</translation>
    </message>
    <message>
        <source>Picking needs the 3D view, which is not available</source>
        <translation>拾取需要三维视图，但三维视图不可用</translation>
    </message>
    <message>
        <source>The part has no shape to pick from. Add or correct a body first.</source>
        <translation>零件没有可供拾取的形状。请先添加或更正实体。</translation>
    </message>
    <message>
        <source>This line is the seam of a face, not an edge; click beside it to pick the face</source>
        <translation>这条线是面的接缝，不是边；请点击它旁边以选取该面</translation>
    </message>
</context>
<context>
    <name>ShapePicture</name>
    <message>
        <source>The shape cannot be drawn: %1</source>
        <translation>无法绘制形状：%1</translation>
    </message>
    <message>
        <source>The part has too many faces for a line drawing.</source>
        <translation>零件的面过多，无法绘制线条图。</translation>
    </message>
</context>
<context>
    <name>SolveActions</name>
    <message>
        <source>Mesh</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Vibration</source>
        <translation>振动</translation>
    </message>
    <message>
        <source>Static analysis</source>
        <translation>静力分析</translation>
    </message>
    <message>
        <source>Modes found: %1, the lowest at %2 Hz</source>
        <translation>找到的模态：%1 个，最低为 %2 Hz</translation>
    </message>
    <message>
        <source>Greatest displacement %1 mm, greatest von Mises stress %2 MPa</source>
        <translation>最大位移 %1 mm，最大冯·米塞斯应力 %2 MPa</translation>
    </message>
    <message>
        <source>The part was meshed: %1 elements</source>
        <translation>零件已划分网格：%1 个单元</translation>
    </message>
    <message>
        <source>Mes&amp;h</source>
        <translation>划分网格(&amp;H)</translation>
    </message>
    <message>
        <source>Solve &amp;vibration</source>
        <translation>求解振动(&amp;V)</translation>
    </message>
    <message>
        <source>Solve s&amp;tatic</source>
        <translation>求解静力(&amp;T)</translation>
    </message>
    <message>
        <source>Read results of a s&amp;olver</source>
        <translation>读取求解器的结果(&amp;O)</translation>
    </message>
    <message>
        <source>No solver has left results in the folder of the project.</source>
        <translation>项目文件夹中没有求解器留下的结果。</translation>
    </message>
    <message>
        <source>A solver has left results in the folder of the project</source>
        <translation>求解器已在项目文件夹中留下结果</translation>
    </message>
    <message>
        <source>%1 begins when the running analysis has ended</source>
        <translation>正在运行的分析结束后开始：%1</translation>
    </message>
    <message>
        <source>The solver found no modes in the range of frequencies</source>
        <translation>求解器在频率范围内未找到模态</translation>
    </message>
</context>
<context>
    <name>SolveDock</name>
    <message>
        <source>Building the part</source>
        <translation>正在构建零件</translation>
    </message>
    <message>
        <source>Meshing</source>
        <translation>正在划分网格</translation>
    </message>
    <message>
        <source>Writing the decks</source>
        <translation>正在写入求解文件</translation>
    </message>
    <message>
        <source>Solving</source>
        <translation>正在求解</translation>
    </message>
    <message>
        <source>Reading the results</source>
        <translation>正在读取结果</translation>
    </message>
    <message>
        <source>Solve</source>
        <translation>求解</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>正在启动</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>Then: %1</source>
        <translation>随后：%1</translation>
    </message>
</context>
<context>
    <name>SolveJob</name>
    <message>
        <source>building the part</source>
        <translation>正在构建零件</translation>
    </message>
    <message>
        <source>meshing with a size of %1 mm</source>
        <translation>正在以尺寸 %1 mm 划分网格</translation>
    </message>
    <message>
        <source>reading the mesh</source>
        <translation>正在读取网格</translation>
    </message>
    <message>
        <source>The mesh has an element that is folded, near (%1, %2, %3) mm: choose another mesh size there.</source>
        <translation>网格在 (%1, %2, %3) mm 附近有折叠的单元：请在该处选择其他网格尺寸。</translation>
    </message>
    <message>
        <source>%1 elements, %2 nodes, %3 degrees of freedom</source>
        <translation>%1 个单元，%2 个节点，%3 个自由度</translation>
    </message>
    <message>
        <source>solving</source>
        <translation>正在求解</translation>
    </message>
    <message>
        <source>reading the results</source>
        <translation>正在读取结果</translation>
    </message>
    <message>
        <source>The greatest displacement would be %1 mm: pieces of the part can move against each other. Add supports, or join the pieces along faces.</source>
        <translation>最大位移将为 %1 mm：零件的各部分可以相对移动。请添加支撑，或沿面连接各部分。</translation>
    </message>
    <message>
        <source>The analysis was cancelled.</source>
        <translation>分析已取消。</translation>
    </message>
    <message>
        <source>The results in the folder are not those of the part and its set-up as they are now: solve again.</source>
        <translation>文件夹中的结果不属于零件及其设置的当前状态：请重新求解。</translation>
    </message>
    <message>
        <source>The analysis ran out of memory. Choose a greater mesh size.</source>
        <translation>分析内存不足。请选择更大的网格尺寸。</translation>
    </message>
</context>
<context>
    <name>SolvePanel</name>
    <message>
        <source>No analysis yet</source>
        <translation>尚无分析</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Progress of the analysis</source>
        <translation>分析进度</translation>
    </message>
    <message>
        <source>Log of the analysis</source>
        <translation>分析日志</translation>
    </message>
    <message>
        <source>Show the results that a solver has left in the folder of the project</source>
        <translation>显示求解器在项目文件夹中留下的结果</translation>
    </message>
</context>
<context>
    <name>SolveProcess</name>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 无法写入。</translation>
    </message>
    <message>
        <source>The process that solves has ended unexpectedly.</source>
        <translation>求解进程意外结束。</translation>
    </message>
    <message>
        <source>The analysis was cancelled.</source>
        <translation>分析已取消。</translation>
    </message>
</context>
<context>
    <name>SolveReport</name>
    <message>
        <source>The file of the results is damaged.</source>
        <translation>结果文件已损坏。</translation>
    </message>
</context>
<context>
    <name>SolveRunner</name>
    <message>
        <source>The decks cannot be written to the folder of the project: %1</source>
        <translation>求解文件无法写入项目文件夹：%1</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>警告：%1</translation>
    </message>
    <message>
        <source>greatest displacement %1 mm, greatest von Mises stress %2 MPa</source>
        <translation>最大位移 %1 mm，最大冯·米塞斯应力 %2 MPa</translation>
    </message>
    <message>
        <source>mode %1: %2 Hz</source>
        <translation>模态 %1：%2 Hz</translation>
    </message>
    <message>
        <source>no modes in the range of frequencies</source>
        <translation>频率范围内没有模态</translation>
    </message>
</context>
<context>
    <name>SolverActions</name>
    <message>
        <source>Run &amp;Nastran</source>
        <translation>运行 Nastran(&amp;N)</translation>
    </message>
    <message>
        <source>Open results in &amp;HyperView</source>
        <translation>在 HyperView 中打开结果(&amp;H)</translation>
    </message>
    <message>
        <source>Solver &amp;paths</source>
        <translation>求解器路径(&amp;P)</translation>
    </message>
    <message>
        <source>The path %1 has blanks: &quot;Run&quot; starts only what is before the first one. Pick a link to the solver whose path has none.</source>
        <translation>路径 %1 含有空格：“运行”只会启动第一个空格之前的部分。请选择路径中没有空格的求解器链接。</translation>
    </message>
</context>
<context>
    <name>StatisticsPage</name>
    <message>
        <source>Calculate</source>
        <translation>计算</translation>
    </message>
    <message>
        <source>Effects of the parameters</source>
        <translation>参数的影响</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Correlation</source>
        <translation>相关系数</translation>
    </message>
    <message>
        <source>Rank correlation</source>
        <translation>秩相关系数</translation>
    </message>
    <message>
        <source>Share of the variance</source>
        <translation>方差占比</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>含交互的占比</translation>
    </message>
    <message>
        <source>Summary of the columns</source>
        <translation>各列摘要</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>试验次数</translation>
    </message>
    <message>
        <source>Without</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>Deviation</source>
        <translation>标准差</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>中位数</translation>
    </message>
    <message>
        <source>Greatest</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Calculate shows the statistics of these runs.</source>
        <translation>单击“计算”显示这些试验的统计。</translation>
    </message>
    <message>
        <source>A quadratic surface over %1 runs explains %2 of the variance, and %3 of runs that it has not seen; its error there is %4.</source>
        <translation>基于 %1 次试验的二次响应面解释了方差的 %2，对未参与拟合的试验为 %3；其误差为 %4。</translation>
    </message>
    <message>
        <source>Statistics of</source>
        <translation>统计对象</translation>
    </message>
</context>
<context>
    <name>StepError</name>
    <message>
        <source>is not a STEP file</source>
        <translation>不是 STEP 文件</translation>
    </message>
    <message>
        <source>is incomplete</source>
        <translation>不完整</translation>
    </message>
    <message>
        <source>contains no shape</source>
        <translation>其中没有形状</translation>
    </message>
    <message>
        <source>contains a shape that extends beyond 1000 m</source>
        <translation>其形状超出 1000 m 的范围</translation>
    </message>
    <message>
        <source>cannot be read as a STEP file</source>
        <translation>无法作为 STEP 文件读取</translation>
    </message>
    <message>
        <source>the geometry kernel failed: %1</source>
        <translation>几何内核失败：%1</translation>
    </message>
    <message>
        <source>the geometry kernel cannot translate the part</source>
        <translation>几何内核无法转换该零件</translation>
    </message>
    <message>
        <source>the file would not read back as the part: %1</source>
        <translation>该文件读回后与零件不同：%1</translation>
    </message>
    <message>
        <source>volume, area or centre of mass differ</source>
        <translation>体积、面积或质心不同</translation>
    </message>
    <message>
        <source>a shell</source>
        <translation>壳</translation>
    </message>
    <message>
        <source>a face</source>
        <translation>面</translation>
    </message>
    <message>
        <source>a wire</source>
        <translation>线环</translation>
    </message>
    <message>
        <source>an edge</source>
        <translation>边</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>its shape %1 is %2, but only closed solids can be used</source>
        <translation>其形状 %1 是%2，但只能使用封闭的实体</translation>
    </message>
    <message>
        <source>its body %1 is not closed: a face may be missing</source>
        <translation>其实体 %1 不封闭：可能缺少面</translation>
    </message>
    <message>
        <source>refers to entities that it does not contain</source>
        <translation>引用了文件中不存在的实体项</translation>
    </message>
    <message>
        <source>its entity #%1 cannot be read: %2</source>
        <translation>无法读取其实体项 #%1：%2</translation>
    </message>
    <message>
        <source>its face #%1 cannot be translated</source>
        <translation>无法转换其面 #%1</translation>
    </message>
    <message>
        <source>defines the entity #%1 twice</source>
        <translation>实体项 #%1 定义了两次</translation>
    </message>
    <message>
        <source>is damaged: %1</source>
        <translation>已损坏：%1</translation>
    </message>
    <message>
        <source>a body is not valid</source>
        <translation>有实体无效</translation>
    </message>
</context>
<context>
    <name>StepFileDialogs</name>
    <message>
        <source>STEP files (*.step *.stp *.STEP *.STP);;All files (*)</source>
        <translation>STEP 文件 (*.step *.stp *.STEP *.STP);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Import STEP</source>
        <translation>导入 STEP</translation>
    </message>
    <message>
        <source>Export STEP</source>
        <translation>导出 STEP</translation>
    </message>
</context>
<context>
    <name>Study</name>
    <message>
        <source>the Sobol sequence takes at most %1 ticked parameters, not %2</source>
        <translation>Sobol 序列最多可勾选 %1 个参数，现为 %2 个</translation>
    </message>
    <message>
        <source>the central composite design takes at most %1 ticked parameters, not %2</source>
        <translation>中心复合设计最多可勾选 %1 个参数，现为 %2 个</translation>
    </message>
    <message>
        <source>%1: row 1: the ticked parameter &quot;%2&quot; has no column</source>
        <translation>%1：第 1 行：勾选的参数“%2”没有对应的列</translation>
    </message>
    <message>
        <source>Too many runs</source>
        <translation>试验次数过多</translation>
    </message>
    <message>
        <source>the Box-Behnken design needs at least %1 ticked parameters, not %2</source>
        <translation>Box-Behnken 设计至少需要勾选 %1 个参数，现为 %2 个</translation>
    </message>
</context>
<context>
    <name>StudyActions</name>
    <message>
        <source>&amp;Start</source>
        <translation>启动(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Pause or continue</source>
        <translation>暂停或继续(&amp;P)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>Show this &amp;run</source>
        <translation>显示此次试验(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Make this the design</source>
        <translation>设为设计(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Open study folder</source>
        <translation>打开研究文件夹(&amp;O)</translation>
    </message>
    <message>
        <source>The study cannot be read: %1</source>
        <translation>无法读取研究：%1</translation>
    </message>
    <message>
        <source>Open study folder</source>
        <translation>打开研究文件夹</translation>
    </message>
    <message>
        <source>The study is done: %1</source>
        <translation>研究已完成：%1</translation>
    </message>
    <message>
        <source>The study has ended: %1</source>
        <translation>研究已结束：%1</translation>
    </message>
    <message>
        <source>it has no value of the parameter &quot;%1&quot;</source>
        <translation>它没有参数“%1”的值</translation>
    </message>
    <message>
        <source>The part is that of run %1</source>
        <translation>零件是第 %1 次试验的零件</translation>
    </message>
    <message>
        <source>Run %1 cannot be shown: %2</source>
        <translation>无法显示第 %1 次试验：%2</translation>
    </message>
    <message>
        <source>the project has no parameter &quot;%1&quot;</source>
        <translation>项目中没有参数“%1”</translation>
    </message>
    <message>
        <source>Make run %1 the design</source>
        <translation>将第 %1 次试验设为设计</translation>
    </message>
    <message>
        <source>Run %1 cannot be made the design: %2</source>
        <translation>无法将第 %1 次试验设为设计：%2</translation>
    </message>
    <message>
        <source>Make the optimum the design</source>
        <translation>将最优点设为设计</translation>
    </message>
    <message>
        <source>The optimum cannot be made the design: %1</source>
        <translation>无法将最优点设为设计：%1</translation>
    </message>
    <message>
        <source>the project is not that of the study: %1</source>
        <translation>当前项目不是该研究的项目：%1</translation>
    </message>
    <message>
        <source>The optimum cannot be verified: %1</source>
        <translation>无法验证最优点：%1</translation>
    </message>
</context>
<context>
    <name>StudyColumns</name>
    <message>
        <source>%1: the response &quot;%2&quot; has the name of another column</source>
        <translation>%1：响应“%2”与另一列同名</translation>
    </message>
    <message>
        <source>%1: the response &quot;%2&quot; cannot be calculated: %3</source>
        <translation>%1：无法计算响应“%2”：%3</translation>
    </message>
</context>
<context>
    <name>StudyExport</name>
    <message>
        <source>&amp;Export CSV</source>
        <translation>导出 CSV(&amp;E)</translation>
    </message>
    <message>
        <source>Export p&amp;icture</source>
        <translation>导出图片(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Copy picture</source>
        <translation>复制图片(&amp;C)</translation>
    </message>
    <message>
        <source>Export the runs that are shown</source>
        <translation>导出显示的试验</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>表格 (*.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Export the plot</source>
        <translation>导出图</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;SVG drawings (*.svg)</source>
        <translation>PNG 图片 (*.png);;SVG 矢量图 (*.svg)</translation>
    </message>
    <message>
        <source>Wrote %1</source>
        <translation>已写入 %1</translation>
    </message>
</context>
<context>
    <name>StudyFingerprint</name>
    <message>
        <source>its format differs</source>
        <translation>格式不同</translation>
    </message>
    <message>
        <source>its parameters differ</source>
        <translation>参数不同</translation>
    </message>
    <message>
        <source>its ticked parameters have other expressions</source>
        <translation>勾选参数的表达式不同</translation>
    </message>
    <message>
        <source>its expressions differ</source>
        <translation>表达式不同</translation>
    </message>
    <message>
        <source>its part differs</source>
        <translation>零件不同</translation>
    </message>
    <message>
        <source>its conditions differ</source>
        <translation>条件不同</translation>
    </message>
    <message>
        <source>its imported files or UserMaterial.xml differ</source>
        <translation>导入的文件或 UserMaterial.xml 不同</translation>
    </message>
    <message>
        <source>its material differs</source>
        <translation>材料不同</translation>
    </message>
    <message>
        <source>its density differs</source>
        <translation>密度不同</translation>
    </message>
    <message>
        <source>its analysis differs</source>
        <translation>分析不同</translation>
    </message>
    <message>
        <source>its analyses or responses differ</source>
        <translation>分析类型或响应不同</translation>
    </message>
    <message>
        <source>the version of its geometry kernel differs</source>
        <translation>几何内核的版本不同</translation>
    </message>
    <message>
        <source>is not of format %1, which this program reads</source>
        <translation>格式不是本程序能读取的 %1</translation>
    </message>
</context>
<context>
    <name>StudyFolder</name>
    <message>
        <source>its %1 has no %2 beside it, so its study is unknown</source>
        <translation>其中的 %1 旁没有 %2，因此不知道属于哪个研究</translation>
    </message>
    <message>
        <source>%1: is not the folder of a study; there is no %2 in it</source>
        <translation>%1：不是研究的文件夹；其中没有 %2</translation>
    </message>
    <message>
        <source>%1: cannot create the folder</source>
        <translation>%1：无法创建文件夹</translation>
    </message>
    <message>
        <source>%1: holds the results of another study: %2; choose another folder</source>
        <translation>%1：已有另一研究的结果：%2；请选择另一个文件夹</translation>
    </message>
</context>
<context>
    <name>StudyFollower</name>
    <message>
        <source>%1: run %2: %3</source>
        <translation>%1：试验 %2：%3</translation>
    </message>
</context>
<context>
    <name>StudyPanel</name>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Parameters of the study</source>
        <translation>研究的参数</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>设计</translation>
    </message>
    <message>
        <source>Full factorial</source>
        <translation>全因子</translation>
    </message>
    <message>
        <source>Latin hypercube</source>
        <translation>拉丁超立方</translation>
    </message>
    <message>
        <source>Sobol sequence</source>
        <translation>Sobol 序列</translation>
    </message>
    <message>
        <source>Box-Behnken</source>
        <translation>Box-Behnken</translation>
    </message>
    <message>
        <source>Central composite</source>
        <translation>中心复合</translation>
    </message>
    <message>
        <source>One at a time</source>
        <translation>逐个变化</translation>
    </message>
    <message>
        <source>List from a file</source>
        <translation>文件中的列表</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>试验次数</translation>
    </message>
    <message>
        <source>Seed</source>
        <translation>种子</translation>
    </message>
    <message>
        <source>A whole number. The same seed gives the same runs.</source>
        <translation>整数。相同的种子得到相同的试验。</translation>
    </message>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>A CSV file whose header names parameters</source>
        <translation>表头为参数名的 CSV 文件</translation>
    </message>
    <message>
        <source>Choose the list</source>
        <translation>选择列表</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Analyses</source>
        <translation>分析</translation>
    </message>
    <message>
        <source>Vibration</source>
        <translation>振动</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>静力</translation>
    </message>
    <message>
        <source>Responses</source>
        <translation>响应</translation>
    </message>
    <message>
        <source>Add a response</source>
        <translation>添加响应</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Remove the selected response</source>
        <translation>删除选中的响应</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Results in</source>
        <translation>结果保存到</translation>
    </message>
    <message>
        <source>The folder for the results, seen from the project</source>
        <translation>结果文件夹，相对于项目</translation>
    </message>
    <message>
        <source>Choose the folder for the results</source>
        <translation>选择结果文件夹</translation>
    </message>
    <message>
        <source>Runs at once</source>
        <translation>同时试验数</translation>
    </message>
    <message>
        <source>STEP files</source>
        <translation>STEP 文件</translation>
    </message>
    <message>
        <source>Write the part of each run to a STEP file</source>
        <translation>将每次试验的零件写入 STEP 文件</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Progress of the study</source>
        <translation>研究的进度</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>研究</translation>
    </message>
    <message>
        <source>1 run</source>
        <translation>1 次试验</translation>
    </message>
    <message>
        <source>%1 runs</source>
        <translation>%1 次试验</translation>
    </message>
    <message>
        <source>; the first ones show how long their analyses take</source>
        <translation>；分析所需时间由最先的试验得出</translation>
    </message>
    <message>
        <source>, about %1</source>
        <translation>，约 %1</translation>
    </message>
    <message>
        <source>Design of the study</source>
        <translation>研究的设计</translation>
    </message>
    <message>
        <source>The seed is a whole number from 0 to %1</source>
        <translation>种子是 0 到 %1 的整数</translation>
    </message>
    <message>
        <source>Seed of the study</source>
        <translation>研究的种子</translation>
    </message>
    <message>
        <source>Analyses of the study</source>
        <translation>研究的分析</translation>
    </message>
    <message>
        <source>List of runs</source>
        <translation>试验列表</translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>表格 (*.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Folder for the results of the study</source>
        <translation>研究结果的文件夹</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Paused. Continue goes on with the project as it was at the start.</source>
        <translation>已暂停。继续时使用启动时的项目。</translation>
    </message>
    <message>
        <source>%1 of %2 runs have ended</source>
        <translation>%2 次试验中 %1 个已结束</translation>
    </message>
    <message>
        <source>, %1 of them failed</source>
        <translation>，其中 %1 个失败</translation>
    </message>
    <message>
        <source>; %1 running</source>
        <translation>；%1 个正在运行</translation>
    </message>
    <message>
        <source>; %1 left</source>
        <translation>；剩余 %1</translation>
    </message>
    <message>
        <source>New folder for the study?</source>
        <translation>为研究使用新文件夹？</translation>
    </message>
    <message>
        <source>The folder %1 holds the results of another study: %2.</source>
        <translation>文件夹 %1 中有另一研究的结果：%2。</translation>
    </message>
    <message>
        <source>Its results stay as they are. This study can use the new folder %1.</source>
        <translation>其中的结果保持不变。本研究可以使用新文件夹 %1。</translation>
    </message>
    <message>
        <source>Use the new folder</source>
        <translation>使用新文件夹</translation>
    </message>
</context>
<context>
    <name>StudyPreview</name>
    <message>
        <source>Tick a parameter that has samples.</source>
        <translation>请勾选一个有样本的参数。</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 小时 %2 分钟</translation>
    </message>
</context>
<context>
    <name>StudyProcess</name>
    <message>
        <source>The study cannot be started: %1: %2</source>
        <translation>无法启动研究：%1：%2</translation>
    </message>
    <message>
        <source>the program that ran it crashed</source>
        <translation>运行它的程序崩溃了</translation>
    </message>
    <message>
        <source>some runs failed; the table shows the reasons</source>
        <translation>部分试验失败；表中有失败原因</translation>
    </message>
    <message>
        <source>the disk is full, or the folder cannot be written (%1)</source>
        <translation>磁盘已满，或无法写入文件夹（%1）</translation>
    </message>
</context>
<context>
    <name>StudyRecords</name>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1：无法读取：%2</translation>
    </message>
</context>
<context>
    <name>StudyResults</name>
    <message>
        <source>Filter</source>
        <translation>过滤</translation>
    </message>
    <message>
        <source>Only runs for which this expression is true are shown</source>
        <translation>只显示此表达式为真的试验</translation>
    </message>
    <message>
        <source>for example mass_kg &lt; 2 &amp;&amp; volume_mm3 &gt; 1000</source>
        <translation>例如 mass_kg &lt; 2 &amp;&amp; volume_mm3 &gt; 1000</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Study results</source>
        <translation>研究结果</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>The filter cannot be used: %1</source>
        <translation>无法使用过滤条件：%1</translation>
    </message>
    <message>
        <source>%1 of %2 runs</source>
        <translation>%2 次试验中的 %1 个</translation>
    </message>
    <message>
        <source>, %1 failed</source>
        <translation>，%1 个失败</translation>
    </message>
    <message>
        <source>, %1 selected</source>
        <translation>，已选 %1 个</translation>
    </message>
    <message>
        <source>Scatter</source>
        <translation>散点图</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>散点矩阵</translation>
    </message>
    <message>
        <source>Parallel</source>
        <translation>平行坐标</translation>
    </message>
    <message>
        <source>Main effects</source>
        <translation>主效应</translation>
    </message>
    <message>
        <source>Convergence</source>
        <translation>收敛</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Optimum</source>
        <translation>最优点</translation>
    </message>
</context>
<context>
    <name>StudyTable</name>
    <message>
        <source>ok</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>试验</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
</context>
<context>
    <name>StudyTableView</name>
    <message>
        <source>Results of the study</source>
        <translation>研究的结果</translation>
    </message>
</context>
<context>
    <name>SurfaceOptimum</name>
    <message>
        <source>no point within the ranges of the parameters keeps all limits; widen a limit or a range</source>
        <translation>在参数范围内没有满足所有限制的点；请放宽限制或范围</translation>
    </message>
    <message>
        <source>too many whole numbers would have to be tried; narrow the range of a parameter</source>
        <translation>要试的整数太多；请缩小某个参数的范围</translation>
    </message>
</context>
<context>
    <name>ToolProcess</name>
    <message>
        <source>%1 was cancelled.</source>
        <translation>%1 已取消。</translation>
    </message>
    <message>
        <source>%1 did not finish within %2 s, the time limit.</source>
        <translation>%1 未能在时限 %2 s 内完成。</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>无法启动 %1：%2</translation>
    </message>
    <message>
        <source>%1 crashed.</source>
        <translation>%1 崩溃。</translation>
    </message>
    <message>
        <source>%1 ended with exit status %2.</source>
        <translation>%1 以退出状态 %2 结束。</translation>
    </message>
    <message>
        <source>%1 ran out of memory; its limit is %2 MB. Choose a greater mesh size, or a greater limit in &quot;Limits of building&quot;.</source>
        <translation>%1 内存不足；其内存上限为 %2 MB。请选择更大的网格尺寸，或在“构建限制”中设置更大的上限。</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>&amp;Fit</source>
        <translation>适合窗口(&amp;F)</translation>
    </message>
    <message>
        <source>F&amp;ront</source>
        <translation>前视(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>后视(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>左视(&amp;L)</translation>
    </message>
    <message>
        <source>Ri&amp;ght</source>
        <translation>右视(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>俯视(&amp;T)</translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation>仰视(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Isometric</source>
        <translation>等轴测(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Shaded with edges</source>
        <translation>带边着色(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Wireframe</source>
        <translation>线框(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;No section</source>
        <translation>无剖面(&amp;N)</translation>
    </message>
    <message>
        <source>Section across &amp;x</source>
        <translation>垂直于 x 的剖面(&amp;X)</translation>
    </message>
    <message>
        <source>Section across &amp;y</source>
        <translation>垂直于 y 的剖面(&amp;Y)</translation>
    </message>
    <message>
        <source>Section across &amp;z</source>
        <translation>垂直于 z 的剖面(&amp;Z)</translation>
    </message>
    <message>
        <source>Place of the section</source>
        <translation>剖切位置</translation>
    </message>
</context>
<context>
    <name>WorkerProcess</name>
    <message>
        <source>%1 The memory was almost used up: the limit of %2 MB may be too low.</source>
        <translation>%1 内存几乎用尽：%2 MB 的限制可能过低。</translation>
    </message>
    <message>
        <source>it needs more memory than the limit of %1 MB.</source>
        <translation>所需内存超过 %1 MB 的限制。</translation>
    </message>
    <message>
        <source>The geometry kernel failed while it measured the part: %1</source>
        <translation>几何内核在测量零件时失败：%1</translation>
    </message>
</context>
</TS>
