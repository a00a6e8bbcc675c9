<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ArcArrayDlg</name>
    <message>
        <source>Arc Array Input</source>
        <translation>圆周阵列参数输入</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>90</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>90</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>4</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>4</translation>
    </message>
    <message>
        <source>Rotation Axis</source>
        <translation>旋转轴</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Direction x</source>
        <translation>方向 x</translation>
    </message>
    <message>
        <source>0</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>0</translation>
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
        <source>1</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>1</translation>
    </message>
    <message>
        <source>Point On Axis</source>
        <translation>轴上点</translation>
    </message>
    <message>
        <source>Point On Axis x</source>
        <translation>轴上点 x</translation>
    </message>
    <message>
        <source>Point On Axis y</source>
        <translation>轴上点 y</translation>
    </message>
    <message>
        <source>Point On Axis z</source>
        <translation>轴上点 z</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>CAnalysisTypeGUI</name>
    <message>
        <source>Analysis Type</source>
        <translation>分析类型</translation>
    </message>
    <message>
        <source>Solver Type</source>
        <translation>求解类型</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>静力</translation>
    </message>
    <message>
        <source>NonLinear Static</source>
        <translation>非线性静力</translation>
    </message>
    <message>
        <source>Flow CFD</source>
        <translation>流体 CFD</translation>
    </message>
    <message>
        <source>Vibration</source>
        <translation>振动</translation>
    </message>
    <message>
        <source>Heat Transfer</source>
        <translation>传热</translation>
    </message>
    <message>
        <source>Buckling</source>
        <translation>屈曲</translation>
    </message>
    <message>
        <source>Frequecny Response</source>
        <translation>频率响应</translation>
    </message>
    <message>
        <source>Transient</source>
        <translation>瞬态</translation>
    </message>
    <message>
        <source>Complex EigenValue</source>
        <translation>复特征值</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>CQLTConstrainEditor</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>CQLTConstrainEditor: Duplicated Attribute Name</source>
        <translation>CQLTConstrainEditor：名称已被占用</translation>
    </message>
</context>
<context>
    <name>CQLTElePropertyEditor</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Property name is empty</source>
        <translation>属性名称为空</translation>
    </message>
</context>
<context>
    <name>CQLTLoadForceEditor</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Duplicated Attribute Name</source>
        <translation>名称已被占用</translation>
    </message>
</context>
<context>
    <name>DOEDlg</name>
    <message>
        <source>DOE Dialog</source>
        <translation>试验设计</translation>
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
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Refresh Data</source>
        <translation>刷新数据</translation>
    </message>
    <message>
        <source>Generate</source>
        <translation>生成</translation>
    </message>
    <message>
        <source>Combine</source>
        <translation>组合</translation>
    </message>
    <message>
        <source>Combine Name</source>
        <translation>组合名称</translation>
    </message>
    <message>
        <source>Set Array</source>
        <translation>设置取值</translation>
    </message>
    <message>
        <source>Notify</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Select one row first!</source>
        <translation>请先选择一行！</translation>
    </message>
    <message>
        <source>Too many runs</source>
        <translation>试验次数过多</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Select one row first</source>
        <translation>请先选择一行</translation>
    </message>
    <message>
        <source>Number not equal</source>
        <translation>数量不一致</translation>
    </message>
</context>
<context>
    <name>ELementPropGUI</name>
    <message>
        <source>ELement Property</source>
        <translation>单元属性</translation>
    </message>
    <message>
        <source>Property Name</source>
        <translation>属性名称</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Material Name</source>
        <translation>材料名称</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>No Element Property is selected</source>
        <translation>未选择单元属性</translation>
    </message>
    <message>
        <source>Current element property is null</source>
        <translation>当前单元属性为空</translation>
    </message>
    <message>
        <source>This operation can&apos;t be undo, Confirm to delete current property?</source>
        <translation>此操作无法撤销，确定要删除当前属性吗？</translation>
    </message>
    <message>
        <source>Item is empty</source>
        <translation>该项为空</translation>
    </message>
</context>
<context>
    <name>Editconductor</name>
    <message>
        <source>Edit Material</source>
        <translation>编辑材料</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Properties of the Material</source>
        <translation>材料属性</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ExpressionText</name>
    <message>
        <source>Position 1: the expression cannot be evaluated</source>
        <translation>位置 1：表达式无法计算</translation>
    </message>
    <message>
        <source>Position %1: %2</source>
        <translation>位置 %1：%2</translation>
    </message>
    <message>
        <source>the character with code %1</source>
        <translation>代码为 %1 的字符</translation>
    </message>
    <message>
        <source>an operation has no real result, such as 0/0 or sqrt(-1)</source>
        <translation>某个运算没有实数结果，例如 0/0 或 sqrt(-1)</translation>
    </message>
    <message>
        <source>an operation has no finite result, such as 1/0 or ln(0)</source>
        <translation>某个运算没有有限结果，例如 1/0 或 ln(0)</translation>
    </message>
    <message>
        <source>a number becomes too large</source>
        <translation>数值过大</translation>
    </message>
    <message>
        <source>%1 is a variable here, not a function</source>
        <translation>%1 在此处是变量，不是函数</translation>
    </message>
    <message>
        <source>the name %1 is unknown</source>
        <translation>名称 %1 未知</translation>
    </message>
    <message>
        <source>the value of %1 is not finite</source>
        <translation>%1 的值不是有限数</translation>
    </message>
    <message>
        <source>the expression has more than %1 characters</source>
        <translation>表达式超过 %1 个字符</translation>
    </message>
    <message>
        <source>the number is too large or too small</source>
        <translation>数值过大或过小</translation>
    </message>
    <message>
        <source>%1 is not allowed here</source>
        <translation>此处不允许出现 %1</translation>
    </message>
    <message>
        <source>a value is missing before %1</source>
        <translation>%1 之前缺少值</translation>
    </message>
    <message>
        <source>nothing can be assigned with &apos;=&apos;; two values are compared with &apos;==&apos;</source>
        <translation>不能用 &apos;=&apos; 赋值；比较两个值请用 &apos;==&apos;</translation>
    </message>
    <message>
        <source>an operator is missing before %1</source>
        <translation>%1 之前缺少运算符</translation>
    </message>
    <message>
        <source>there is no function %1</source>
        <translation>没有函数 %1</translation>
    </message>
    <message>
        <source>&apos;:&apos; without a matching &apos;?&apos;</source>
        <translation>缺少与 &apos;:&apos; 匹配的 &apos;?&apos;</translation>
    </message>
    <message>
        <source>more than one value; &apos;,&apos; is only used between the values of a function, and the decimal sign is the full stop</source>
        <translation>有多个值；&apos;,&apos; 只能用在函数的各个值之间，小数点须用英文句点“.”</translation>
    </message>
    <message>
        <source>&apos;)&apos; without a matching &apos;(&apos;</source>
        <translation>缺少与 &apos;)&apos; 匹配的 &apos;(&apos;</translation>
    </message>
    <message>
        <source>the expression is empty</source>
        <translation>表达式为空</translation>
    </message>
    <message>
        <source>the expression ends where a value must follow</source>
        <translation>表达式在应有值的位置结束</translation>
    </message>
    <message>
        <source>the function %1 takes %2 value(s), not %3</source>
        <translation>函数 %1 需要 %2 个值，而不是 %3 个</translation>
    </message>
    <message>
        <source>&apos;?&apos; without a matching &apos;:&apos;</source>
        <translation>缺少与 &apos;?&apos; 匹配的 &apos;:&apos;</translation>
    </message>
    <message>
        <source>&apos;(&apos; without a matching &apos;)&apos;</source>
        <translation>缺少与 &apos;(&apos; 匹配的 &apos;)&apos;</translation>
    </message>
</context>
<context>
    <name>ExternalSolverOption</name>
    <message>
        <source>ExternalSolverOption</source>
        <translation>外部求解器选项</translation>
    </message>
    <message>
        <source>Ansys</source>
        <translation>Ansys</translation>
    </message>
    <message>
        <source>Abaqus</source>
        <translation>Abaqus</translation>
    </message>
    <message>
        <source>Nastran</source>
        <translation>Nastran</translation>
    </message>
    <message>
        <source>Fluent</source>
        <translation>Fluent</translation>
    </message>
    <message>
        <source>openFOAM</source>
        <translation>openFOAM</translation>
    </message>
    <message>
        <source>OOFEM</source>
        <translation>OOFEM</translation>
    </message>
    <message>
        <source>HFSS</source>
        <translation>HFSS</translation>
    </message>
    <message>
        <source>CST</source>
        <translation>CST</translation>
    </message>
    <message>
        <source>COMSOL</source>
        <translation>COMSOL</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ExtrudInputDlg</name>
    <message>
        <source>拉伸参数输入</source>
        <translation>拉伸参数输入</translation>
    </message>
    <message>
        <source>Extrude Direction</source>
        <translation>拉伸方向</translation>
    </message>
    <message>
        <source>dx</source>
        <translation>dx</translation>
    </message>
    <message>
        <source>0</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>0</translation>
    </message>
    <message>
        <source>dy</source>
        <translation>dy</translation>
    </message>
    <message>
        <source>dz</source>
        <translation>dz</translation>
    </message>
    <message>
        <source>1</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>1</translation>
    </message>
    <message>
        <source>Extrude Length</source>
        <translation>拉伸长度</translation>
    </message>
    <message>
        <source>10</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>10</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>KVMaterialLibrary</name>
    <message>
        <source>Material Library</source>
        <translation>材料库</translation>
    </message>
    <message>
        <source>Mechanical</source>
        <translation>力学</translation>
    </message>
    <message>
        <source>Search Parameters</source>
        <translation>搜索条件</translation>
    </message>
    <message>
        <source>Search by Name</source>
        <translation>按名称搜索</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Show Project definition</source>
        <translation>显示用户材料</translation>
    </message>
    <message>
        <source>show all libraries</source>
        <translation>显示所有材料库</translation>
    </message>
    <message>
        <source>View/Edit Material</source>
        <translation>查看/编辑材料</translation>
    </message>
    <message>
        <source>Add Material</source>
        <translation>添加材料</translation>
    </message>
    <message>
        <source>Clone Material</source>
        <translation>复制材料</translation>
    </message>
    <message>
        <source>Remove Material</source>
        <translation>删除材料</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Too many add</source>
        <translation>复制次数已达上限</translation>
    </message>
    <message>
        <source>Confirm to delete current material?</source>
        <translation>确定要删除当前材料吗？</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Elastic Modulus</source>
        <translation>弹性模量</translation>
    </message>
    <message>
        <source>Poisson</source>
        <translation>泊松比</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>密度</translation>
    </message>
    <message>
        <source>No material is selected</source>
        <translation>未选择材料</translation>
    </message>
</context>
<context>
    <name>MatrixArrayDlg</name>
    <message>
        <source>矩形阵列参数输入</source>
        <translation>矩形阵列参数输入</translation>
    </message>
    <message>
        <source>X Direction</source>
        <translation>X 方向</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>X Direction Number</source>
        <translation>X 方向数量</translation>
    </message>
    <message>
        <source>5</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>5</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>间距</translation>
    </message>
    <message>
        <source>X Direction Distance</source>
        <translation>X 方向间距</translation>
    </message>
    <message>
        <source>50</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>50</translation>
    </message>
    <message>
        <source>Y Direction</source>
        <translation>Y 方向</translation>
    </message>
    <message>
        <source>Y Direction Number</source>
        <translation>Y 方向数量</translation>
    </message>
    <message>
        <source>4</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>4</translation>
    </message>
    <message>
        <source>Y Direction Distance</source>
        <translation>Y 方向间距</translation>
    </message>
    <message>
        <source>100</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>100</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>MeshSizeInput</name>
    <message>
        <source>MeshSizeInput</source>
        <translation>网格尺寸输入</translation>
    </message>
    <message>
        <source>Mesh Size</source>
        <translation>网格尺寸</translation>
    </message>
    <message>
        <source>1</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>1</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>MirrorDialog</name>
    <message>
        <source>Input</source>
        <translation>镜像参数输入</translation>
    </message>
    <message>
        <source>Mirror By Point</source>
        <translation>关于点镜像</translation>
    </message>
    <message>
        <source>Point x</source>
        <translation>点 x</translation>
    </message>
    <message>
        <source>0</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>0</translation>
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
        <source>Mirror By Axis</source>
        <translation>关于轴镜像</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
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
        <source>1</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>1</translation>
    </message>
    <message>
        <source>Point On Axis</source>
        <translation>轴上点</translation>
    </message>
    <message>
        <source>Point On Axis x</source>
        <translation>轴上点 x</translation>
    </message>
    <message>
        <source>Point On Axis y</source>
        <translation>轴上点 y</translation>
    </message>
    <message>
        <source>Point On Axis z</source>
        <translation>轴上点 z</translation>
    </message>
    <message>
        <source>Pick One Face</source>
        <translation>选取一个面</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>MoveInput</name>
    <message>
        <source>Input Move Parameter</source>
        <translation>移动参数输入</translation>
    </message>
    <message>
        <source>dx</source>
        <translation>dx</translation>
    </message>
    <message>
        <source>0.0</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>0.0</translation>
    </message>
    <message>
        <source>dy</source>
        <translation>dy</translation>
    </message>
    <message>
        <source>dz</source>
        <translation>dz</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>OneParameterDlg</name>
    <message>
        <source>OneParameterDlg</source>
        <translation>单参数设置</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Log10</source>
        <translation>Log10</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>线性</translation>
    </message>
    <message>
        <source>Ln</source>
        <translation>Ln</translation>
    </message>
    <message>
        <source>Gauss</source>
        <translation>高斯</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>0</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>0</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>1</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>1</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>步长</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>No parameter input</source>
        <translation>未输入参数</translation>
    </message>
    <message>
        <source>Check input data!</source>
        <translation>请检查输入数据！</translation>
    </message>
    <message>
        <source>Not implement yet</source>
        <translation>尚未实现</translation>
    </message>
    <message>
        <source>Notify</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Select one row first!</source>
        <translation>请先选择一行！</translation>
    </message>
</context>
<context>
    <name>ParameterEditor</name>
    <message>
        <source>ParameterEditor</source>
        <translation>参数编辑器</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Expression Para</source>
        <translation>引用的参数</translation>
    </message>
    <message>
        <source>Desciption</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <source>Bool</source>
        <translation>布尔</translation>
    </message>
    <message>
        <source>Notify</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Please Input a digital number</source>
        <translation>请输入数值</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>invalid coordinate type</source>
        <translation>矢量格式无效，应为 x,y,z</translation>
    </message>
</context>
<context>
    <name>ParameterEvaluator</name>
    <message>
        <source>Circular reference: %1</source>
        <translation>表达式相互依赖：%1</translation>
    </message>
    <message>
        <source>its expression uses &quot;%1&quot;, which is not a parameter</source>
        <translation>其表达式使用了“%1”，它不是参数</translation>
    </message>
    <message>
        <source>it uses &quot;%1&quot;, which has no value</source>
        <translation>它使用的“%1”没有值</translation>
    </message>
</context>
<context>
    <name>PolygonNumInputDlg</name>
    <message>
        <source>Input</source>
        <translation>多边形参数输入</translation>
    </message>
    <message>
        <source>Polygon Number:</source>
        <translation>多边形边数：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>PosInputDlg</name>
    <message>
        <source>PosInputDlg</source>
        <translation>位置输入</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
</context>
<context>
    <name>QLTConstrainEditor</name>
    <message>
        <source>Boundary Condition Editor_Fixed</source>
        <translation>固定约束</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>defaultBC</source>
        <translatorcomment>This name is stored: leave it unchanged in every language.</translatorcomment>
        <translation>defaultBC</translation>
    </message>
    <message>
        <source>Displacement</source>
        <translation>位移</translation>
    </message>
    <message>
        <source>X_D</source>
        <translation>X_D</translation>
    </message>
    <message>
        <source>Y_D</source>
        <translation>Y_D</translation>
    </message>
    <message>
        <source>Z_D </source>
        <translation>Z_D </translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>转动</translation>
    </message>
    <message>
        <source>X_R</source>
        <translation>X_R</translation>
    </message>
    <message>
        <source>Y_R</source>
        <translation>Y_R</translation>
    </message>
    <message>
        <source>Z_R </source>
        <translation>Z_R </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>QLTElemProperty</name>
    <message>
        <source>Element Property</source>
        <translation>单元属性</translation>
    </message>
    <message>
        <source>Property Name</source>
        <translation>属性名称</translation>
    </message>
    <message>
        <source>Material Name</source>
        <translation>材料名称</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Element Type</source>
        <translation>单元类型</translation>
    </message>
    <message>
        <source>2D Element</source>
        <translation>二维单元</translation>
    </message>
    <message>
        <source>Shell</source>
        <translation>壳</translation>
    </message>
    <message>
        <source>Membrane</source>
        <translation>膜</translation>
    </message>
    <message>
        <source>1D Element</source>
        <translation>一维单元</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>杆</translation>
    </message>
    <message>
        <source>Beam</source>
        <translation>梁</translation>
    </message>
    <message>
        <source>3D Element</source>
        <translation>三维单元</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>实体</translation>
    </message>
    <message>
        <source>Element Property Parameter</source>
        <translation>单元属性参数</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>厚度</translation>
    </message>
    <message>
        <source>1</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>1</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>QLTLoadForceEditor</name>
    <message>
        <source>Load Force Editor</source>
        <translation>力载荷编辑器</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Default</source>
        <translatorcomment>This name is stored: leave it unchanged in every language.</translatorcomment>
        <translation>Default</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>加载方式</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>分量</translation>
    </message>
    <message>
        <source>Normal to surface</source>
        <translation>沿面法向</translation>
    </message>
    <message>
        <source>Force Value</source>
        <translation>载荷分量</translation>
    </message>
    <message>
        <source>FX</source>
        <translation>FX</translation>
    </message>
    <message>
        <source>1000</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>1000</translation>
    </message>
    <message>
        <source>FY</source>
        <translation>FY</translation>
    </message>
    <message>
        <source>0</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>0</translation>
    </message>
    <message>
        <source>FZ</source>
        <translation>FZ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ResultSetting</name>
    <message>
        <source>HyperView Result Viewer</source>
        <translation>HyperView 结果查看器</translation>
    </message>
    <message>
        <source>HyperView</source>
        <translation>HyperView</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Open HyperView.exe</source>
        <translation>打开 HyperView.exe</translation>
    </message>
</context>
<context>
    <name>SolverSetting</name>
    <message>
        <source>Nastran Solver</source>
        <translation>Nastran 求解器</translation>
    </message>
    <message>
        <source>Nastran</source>
        <translation>Nastran</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>运行</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Open Nastran.exe</source>
        <translation>打开 Nastran.exe</translation>
    </message>
</context>
<context>
    <name>SubShapeMeshParameterDlg</name>
    <message>
        <source>SubShapeMeshParameterDlg</source>
        <translation>局部网格参数</translation>
    </message>
    <message>
        <source>Mesh Size</source>
        <translation>网格尺寸</translation>
    </message>
    <message>
        <source>Mesh number</source>
        <translation>单元数</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>TruncatedConeInputDlg</name>
    <message>
        <source>Input</source>
        <translation>圆台参数输入</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度：</translation>
    </message>
    <message>
        <source>10</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>10</translation>
    </message>
    <message>
        <source>Top Radius</source>
        <translation>顶面半径</translation>
    </message>
    <message>
        <source>5</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>5</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>360</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>360</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>WedgeInputDlg</name>
    <message>
        <source>WedgeInputDlg</source>
        <translation>楔体参数输入</translation>
    </message>
    <message>
        <source>height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>30</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>30</translation>
    </message>
    <message>
        <source>X min</source>
        <translation>X 最小值</translation>
    </message>
    <message>
        <source>5</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>5</translation>
    </message>
    <message>
        <source>X max</source>
        <translation>X 最大值</translation>
    </message>
    <message>
        <source>15</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>15</translation>
    </message>
    <message>
        <source>Z min</source>
        <translation>Z 最小值</translation>
    </message>
    <message>
        <source>8</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>8</translation>
    </message>
    <message>
        <source>Z max</source>
        <translation>Z 最大值</translation>
    </message>
    <message>
        <source>20</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>20</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>exceeds the limit of %1</source>
        <translation>超过上限 %1</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>无法打开：%1</translation>
    </message>
    <message>
        <source>is a folder, not a file</source>
        <translation>是文件夹，不是文件</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>无法写入：%1</translation>
    </message>
    <message>
        <source>cannot be copied: %1</source>
        <translation>无法复制：%1</translation>
    </message>
</context>
<context>
    <name>frequencySetting</name>
    <message>
        <source>frequencySetting</source>
        <translation>频率设置</translation>
    </message>
    <message>
        <source>Frequency Setting</source>
        <translation>频率设置</translation>
    </message>
    <message>
        <source>Min Frequency:</source>
        <translation>频率下限：</translation>
    </message>
    <message>
        <source>1.0</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>1.0</translation>
    </message>
    <message>
        <source>Max Frequency:</source>
        <translation>频率上限：</translation>
    </message>
    <message>
        <source>1000000.0</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>1000000.0</translation>
    </message>
    <message>
        <source>Frequency Number:</source>
        <translation>频率个数：</translation>
    </message>
    <message>
        <source>10</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>10</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Invalid Parameter</source>
        <translation>参数无效</translation>
    </message>
</context>
<context>
    <name>rotateInputDlg</name>
    <message>
        <source>Input</source>
        <translation>旋转参数输入</translation>
    </message>
    <message>
        <source>Rotation Axis</source>
        <translation>旋转轴</translation>
    </message>
    <message>
        <source>Point On Axis</source>
        <translation>轴上点</translation>
    </message>
    <message>
        <source>Point On Axis x</source>
        <translation>轴上点 x</translation>
    </message>
    <message>
        <source>0</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>0</translation>
    </message>
    <message>
        <source>Point On Axis y</source>
        <translation>轴上点 y</translation>
    </message>
    <message>
        <source>Point On Axis z</source>
        <translation>轴上点 z</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
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
        <source>1</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>1</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>90</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>90</translation>
    </message>
    <message>
        <source>Degree</source>
        <translation>度</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>sphereParaInputdlg</name>
    <message>
        <source>Input</source>
        <translation>球体参数输入</translation>
    </message>
    <message>
        <source>Angle1</source>
        <translation>角度1</translation>
    </message>
    <message>
        <source>-90</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>-90</translation>
    </message>
    <message>
        <source>Degree  Range：[-90, 0)</source>
        <translation>度  范围：[-90, 0)</translation>
    </message>
    <message>
        <source>Angle2</source>
        <translation>角度2</translation>
    </message>
    <message>
        <source>90</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>90</translation>
    </message>
    <message>
        <source>Degree  Range：(0, 90)</source>
        <translation>度  范围：(0, 90)</translation>
    </message>
    <message>
        <source>Angle3</source>
        <translation>角度3</translation>
    </message>
    <message>
        <source>360</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>360</translation>
    </message>
    <message>
        <source>Degree  Range：(0, 360]</source>
        <translation>度  范围：(0, 360]</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>torusParaInputDlg</name>
    <message>
        <source>Input</source>
        <translation>圆环参数输入</translation>
    </message>
    <message>
        <source>Sweep Radius</source>
        <translation>截面半径（管半径）</translation>
    </message>
    <message>
        <source>3</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>3</translation>
    </message>
    <message>
        <source>Angle1</source>
        <translation>角度1</translation>
    </message>
    <message>
        <source>-180</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>-180</translation>
    </message>
    <message>
        <source>Degree  [-180,0)</source>
        <translation>度  [-180,0)</translation>
    </message>
    <message>
        <source>Angle2</source>
        <translation>角度2</translation>
    </message>
    <message>
        <source>180</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>180</translation>
    </message>
    <message>
        <source>Degree  (0,180]</source>
        <translation>度  (0,180]</translation>
    </message>
    <message>
        <source>Angle3</source>
        <translation>角度3</translation>
    </message>
    <message>
        <source>360</source>
        <translatorcomment>The program reads this number back: leave it unchanged in every language.</translatorcomment>
        <translation>360</translation>
    </message>
    <message>
        <source>Degree  (0,360]</source>
        <translation>度  (0,360]</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
</TS>
