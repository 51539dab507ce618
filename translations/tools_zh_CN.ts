<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>console</name>
    <message>
        <source>standard output</source>
        <translation>标准输出</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>无法写入</translation>
    </message>
    <message>
        <source>; see %1 --help</source>
        <translation>；用法参见 %1 --help</translation>
    </message>
    <message>
        <source>--language takes &apos;English&apos; or &apos;Chinese&apos;</source>
        <translation>--language 的值应为 &apos;English&apos; 或 &apos;Chinese&apos;</translation>
    </message>
</context>
<context>
    <name>materials</name>
    <message>
        <source>check takes one file</source>
        <translation>check 只接受一个文件</translation>
    </message>
    <message>
        <source>Material libraries.

  materials list   [--library L] [--json]
      The materials with their identifiers, deleted ones marked.
  materials show   [--library L] [--json] ID|NAME
      One material with all its values.
  materials export [--library L] [--format csv|json] [--output FILE]
      The live materials; CSV unless FILE ends in .json.
  materials import [--library L] [--update] [--dry-run] [--json] SOURCE [ID|NAME...]
      Compares the materials of SOURCE (a library as below, or a CSV or JSON
      file), all or those named, with the library: new, same, changed, refused.
      Then copies the new ones into it, and with --update the changed ones too.
  materials check  [--library L] [--json] [FILE]
      Names every fault of a library file with its place.

  --library L   software (ConfigFiles/MaterialLibrary.json beside the program,
                the default) or project:DIR (MaterialLibrary.json in DIR)
  --plain       project libraries are plain JSON, not enciphered
  --dry-run     only compare
  --language L  the language of these texts: English (the default) or Chinese

Exit codes: 0 ok, 1 faults found or a material is missing, 2 wrong call,
3 a file or standard output cannot be read or written.
</source>
        <translation>材料库工具。

  materials list   [--library 库] [--json]
      列出材料及其编号，已删除的会标明。
  materials show   [--library 库] [--json] 编号|名称
      显示一个材料的全部数据。
  materials export [--library 库] [--format csv|json] [--output 文件]
      导出有效材料；文件名不以 .json 结尾时为 CSV 格式。
  materials import [--library 库] [--update] [--dry-run] [--json] 来源 [编号|名称...]
      将来源（如下所述的材料库，或 CSV、JSON 文件）中的全部或指定材料与材料库比较：
      新增、相同、不同、拒绝。然后复制新增的材料；加 --update 时也更新不同的材料。
  materials check  [--library 库] [--json] [文件]
      指出材料库文件的每处错误及其位置。

  --library 库  software（程序旁的 ConfigFiles/MaterialLibrary.json，默认）
                或 project:目录（该目录中的 MaterialLibrary.json）
  --plain       工程材料库为明文 JSON，未加密
  --dry-run     只比较，不复制
  --language L  这些文字的语言：English（默认）或 Chinese

退出码：0 成功，1 发现错误或缺少材料，2 命令用法有误，
3 文件无法读写，或标准输出无法写入。
</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>未知命令“%1”</translation>
    </message>
    <message>
        <source>new</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>same</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>不同</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>拒绝</translation>
    </message>
    <message>
        <source>%1: cannot be written</source>
        <translation>%1：无法写入</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1：无法读取</translation>
    </message>
    <message>
        <source>import takes a library or a file</source>
        <translation>import 需要指定一个材料库或文件</translation>
    </message>
    <message>
        <source>%1 has no material &apos;%2&apos;</source>
        <translation>%1 中没有材料“%2”</translation>
    </message>
    <message>
        <source>%1: no such directory</source>
        <translation>%1：目录不存在</translation>
    </message>
    <message>
        <source>the last material is a tombstone</source>
        <translation>最后一个材料是已删除的占位记录</translation>
    </message>
    <message>
        <source>is no identifier</source>
        <translation>不是有效的编号</translation>
    </message>
    <message>
        <source>%1 is taken by %2</source>
        <translation>编号 %1 已被 %2 占用</translation>
    </message>
    <message>
        <source>is %1, expected %2</source>
        <translation>为 %1，应为 %2</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is reserved</source>
        <translation>“%1”是保留名称</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is also the name of %2</source>
        <translation>“%1”与 %2 重名</translation>
    </message>
    <message>
        <source>unknown member</source>
        <translation>未知成员</translation>
    </message>
    <message>
        <source>is no material</source>
        <translation>不是材料记录</translation>
    </message>
    <message>
        <source>%1:%2: no JSON: %3</source>
        <translation>%1:%2：不是 JSON：%3</translation>
    </message>
    <message>
        <source>%1:1:1: a JSON object is expected at the root</source>
        <translation>%1:1:1：根元素应为 JSON 对象</translation>
    </message>
    <message>
        <source>%1: the root has no list &apos;materialList&apos;</source>
        <translation>%1：根对象中没有列表“materialList”</translation>
    </message>
    <message>
        <source>%1: not enciphered with this key, or damaged; --plain reads plain JSON</source>
        <translation>%1：不是用当前密钥加密的，或文件已损坏；明文 JSON 请用 --plain 读取</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>live</source>
        <translation>有效</translation>
    </message>
    <message>
        <source>  %1 (kind %2, flag %3)
      %4
      %5
</source>
        <translation>  %1（类别 %2，标志 %3）
      %4
      %5
</translation>
    </message>
    <message>
        <source>show takes one identifier or name</source>
        <translation>show 需要一个编号或名称</translation>
    </message>
    <message>
        <source>the %1 library has no material &apos;%2&apos;</source>
        <translation>材料库 %1 中没有材料“%2”</translation>
    </message>
    <message>
        <source>kind &apos;%1&apos; is no whole number</source>
        <translation>类别“%1”不是整数</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; is no number</source>
        <translation>%1 的值“%2”不是数字</translation>
    </message>
    <message>
        <source>flag &apos;%1&apos; is neither 0 nor 1</source>
        <translation>标志“%1”既不是 0 也不是 1</translation>
    </message>
    <message>
        <source>%1 cells, expected %2</source>
        <translation>有 %1 个单元格，应为 %2 个</translation>
    </message>
    <message>
        <source>id &apos;%1&apos; is no whole number</source>
        <translation>编号“%1”不是整数</translation>
    </message>
    <message>
        <source>property &apos;%1&apos; is not 0 to 5</source>
        <translation>属性序号“%1”不在 0 到 5 之间</translation>
    </message>
    <message>
        <source>material %1, property %2: %3 components do not fit the nine columns of CSV</source>
        <translation>材料 %1 的属性 %2 有 %3 个分量，与 CSV 的九列不符</translation>
    </message>
    <message>
        <source>%1:1: the head line is not &apos;%2&apos;</source>
        <translation>%1:1：表头不是“%2”</translation>
    </message>
    <message>
        <source>--library takes &apos;software&apos; or &apos;project:DIR&apos;, not &apos;%1&apos;</source>
        <translation>--library 的值应为 &apos;software&apos; 或 &apos;project:目录&apos;，而不是“%1”</translation>
    </message>
    <message>
        <source>--format takes &apos;csv&apos; or &apos;json&apos;, not &apos;%1&apos;</source>
        <translation>--format 的值应为 &apos;csv&apos; 或 &apos;json&apos;，而不是“%1”</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>未知选项“%1”</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 需要一个值</translation>
    </message>
    <message>
        <source>has %1 values, expected 9</source>
        <translation>有 %1 个值，应为 9 个</translation>
    </message>
    <message>
        <source>is no number</source>
        <translation>不是数字</translation>
    </message>
    <message>
        <source>is %1</source>
        <translation>为 %1</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>is of another type</source>
        <translation>类型不符</translation>
    </message>
    <message>
        <source>is no property</source>
        <translation>不是属性记录</translation>
    </message>
    <message>
        <source>is no whole number</source>
        <translation>不是整数</translation>
    </message>
</context>
<context>
    <name>meshquality</name>
    <message>
        <source>%1 %2 elements (%3 %)</source>
        <translation>%1 %2 个单元（%3 %）</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>warn</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>--profile needs a file</source>
        <translation>--profile 需要一个文件</translation>
    </message>
    <message>
        <source>no mesh is given</source>
        <translation>未指定网格文件</translation>
    </message>
    <message>
        <source>Quality of tetrahedral meshes in MSH 2 ASCII and VTK XML (.vtu); with gmsh on the path in any MSH.

  meshquality report [OPTION...] MESH...
      Counts, means and spread of eleven metrics, and the model&apos;s score of each mesh.
      --json FILE         also as JSON into a file, or with - onto standard output instead of the table
      --jsonl             one JSON object a line on standard output, as each mesh ends, instead of the table
      --csv FILE          all values, one line an element
      --vtu FILE          the mesh with one cell array a metric, for ParaView
      --html FILE         one web page with everything
      --worst N           the worst N elements
      --by METRIC         by which metric they are the worst (Shape)
      --histogram METRIC  how the values of a metric are spread
      --by-region         the same for each physical group
      --model FILE        another model than ../mesher/mesh.onnx beside the program
  meshquality check [--profile FILE] MESH...
      One line a mesh: pass, warn or fail against the thresholds of a profile, or of the built-in one.
  meshquality check --print-profile
      The built-in profile, with the source of each threshold.
  meshquality compare [--model FILE] A B
      Two meshes side by side, with what has improved and what has worsened.
  meshquality model [--json] [FILE]
      Whether a model can serve, and what it says about itself; without FILE the one beside the program.
  meshquality predict
      Scores ../temp/mesh.msh beside the program, as an application does, and
      prints the history of the last ten scores, oldest first.
  meshquality --help
  meshquality --version

  --language L  the language of these texts: English (the default) or Chinese; JSON and CSV stay as they are

Exit codes: 0 ok, 1 a mesh fails its check or a model does not meet the contract, 2 wrong call or a result
cannot be written, 3 a mesh or the model to be judged cannot be read, 4 the model cannot be used for scores;
of several the highest.
</source>
        <translation>四面体网格质量工具，读取 MSH 2 ASCII 和 VTK XML (.vtu)；路径中有 gmsh 时可读取任何 MSH。

  meshquality report [选项...] 网格...
      每个网格的数量、十一项指标的均值与分布，以及模型给出的评分。
      --json 文件         同时以 JSON 写入文件；为 - 时写到标准输出，代替表格
      --jsonl             每完成一个网格，在标准输出写一行 JSON 对象，代替表格
      --csv 文件          全部数值，每个单元一行
      --vtu 文件          网格，每项指标一个单元数组，供 ParaView 使用
      --html 文件         包含全部内容的一个网页
      --worst N           最差的 N 个单元
      --by 指标           按哪项指标算最差（Shape）
      --histogram 指标    一项指标的数值分布
      --by-region         按物理组分别列出
      --model 文件        不用程序旁的 ../mesher/mesh.onnx，改用另一个模型
  meshquality check [--profile 文件] 网格...
      每个网格一行：按指定的或内置的阈值配置判为合格、警告或不合格。
  meshquality check --print-profile
      内置的阈值配置，注明每个阈值的来源。
  meshquality compare [--model 文件] A B
      两个网格并列比较，指出改善与变差之处。
  meshquality model [--json] [文件]
      模型能否使用，以及它对自身的说明；不指定文件时为程序旁的模型。
  meshquality predict
      像应用程序那样为程序旁的 ../temp/mesh.msh 评分，
      并输出最近十次评分，最早的在前。
  meshquality --help
  meshquality --version

  --language L  这些文字的语言：English（默认）或 Chinese；JSON 和 CSV 不变

退出码：0 成功，1 网格未通过检查或模型不符合约定，2 命令用法有误或结果无法写入，
3 网格或待判断的模型无法读取，4 模型无法用于评分；有多个时取最大值。
</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>未指定命令</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>未知命令“%1”</translation>
    </message>
    <message>
        <source>  meets the contract of a quality model
</source>
        <translation>  符合质量模型的约定
</translation>
    </message>
    <message>
        <source>  does not meet the contract: </source>
        <translation>  不符合约定：</translation>
    </message>
    <message>
        <source>  scores %1 for ordinary features, %2 for zeros, %3 for NaN
</source>
        <translation>  评分：一般特征 %1，全零 %2，NaN %3
</translation>
    </message>
    <message>
        <source>any</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>  remark: </source>
        <translation>  说明：</translation>
    </message>
    <message>
        <source>model takes one file</source>
        <translation>model 只接受一个文件</translation>
    </message>
    <message>
        <source>%1 %2 lies outside of the range that the model was trained on, %3 to %4</source>
        <translation>%1 的值 %2 超出模型的训练范围（%3 至 %4）</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>为空</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>no tetrahedra</source>
        <translation>没有四面体</translation>
    </message>
    <message>
        <source>a node needs four columns</source>
        <translation>节点行应有四列</translation>
    </message>
    <message>
        <source>a tetrahedron needs nine columns</source>
        <translation>四面体行应有九列</translation>
    </message>
    <message>
        <source>names a node that is not there (nodes are numbered by their place in the file)</source>
        <translation>引用了不存在的节点（节点按其在文件中的位置编号）</translation>
    </message>
    <message>
        <source>not a VTK XML unstructured grid</source>
        <translation>不是 VTK XML 非结构网格</translation>
    </message>
    <message>
        <source>a damaged VTK XML unstructured grid</source>
        <translation>VTK XML 非结构网格已损坏</translation>
    </message>
    <message>
        <source>a VTK XML unstructured grid that does not fit into the memory</source>
        <translation>VTK XML 非结构网格过大，内存不足</translation>
    </message>
    <message>
        <source>there is no room for temporary files</source>
        <translation>没有存放临时文件的空间</translation>
    </message>
    <message>
        <source>there is no metric &apos;%1&apos;</source>
        <translation>没有名为“%1”的指标</translation>
    </message>
    <message>
        <source>%1 needs a number as minimum or maximum</source>
        <translation>%1 的最小值或最大值应为数字</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1（第 %2 字节处）</translation>
    </message>
    <message>
        <source>has no list of thresholds</source>
        <translation>没有阈值列表</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>无法写入</translation>
    </message>
    <message>
        <source>--worst needs a number from 1</source>
        <translation>--worst 需要一个不小于 1 的整数</translation>
    </message>
    <message>
        <source>--by goes with --worst</source>
        <translation>--by 须与 --worst 同用</translation>
    </message>
    <message>
        <source>--%1 needs a file</source>
        <translation>--%1 需要一个文件</translation>
    </message>
    <message>
        <source>--vtu goes with one mesh</source>
        <translation>--vtu 只能用于一个网格</translation>
    </message>
    <message>
        <source>--jsonl and --json - both need standard output</source>
        <translation>--jsonl 与 --json - 都要占用标准输出</translation>
    </message>
    <message>
        <source>same</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>improved</source>
        <translation>改善</translation>
    </message>
    <message>
        <source>worsened</source>
        <translation>变差</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>均值</translation>
    </message>
    <message>
        <source>median</source>
        <translation>中位数</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>nodes</source>
        <translation>节点</translation>
    </message>
    <message>
        <source>tetrahedra</source>
        <translation>四面体</translation>
    </message>
    <message>
        <source>inverted</source>
        <translation>翻转</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>扁平</translation>
    </message>
    <message>
        <source>score</source>
        <translation>评分</translation>
    </message>
    <message>
        <source>  model </source>
        <translation>  模型 </translation>
    </message>
    <message>
        <source>  warning: %1: %2
</source>
        <translation>  警告：%1：%2
</translation>
    </message>
    <message>
        <source>compare needs two meshes</source>
        <translation>compare 需要两个网格</translation>
    </message>
    <message>
        <source>Mesh quality</source>
        <translation>网格质量</translation>
    </message>
    <message>
        <source>There is no score, because the model cannot be used.</source>
        <translation>没有评分，因为模型无法使用。</translation>
    </message>
    <message>
        <source>There is no score, because the model gives no number.</source>
        <translation>没有评分，因为模型未给出数值。</translation>
    </message>
    <message>
        <source>There is no score, because a mean is no finite number.</source>
        <translation>没有评分，因为有均值不是有限数。</translation>
    </message>
    <message>
        <source>score (0 worst, 1 best)</source>
        <translation>评分（0 最差，1 最好）</translation>
    </message>
    <message>
        <source>The score means nothing, because a mean is no finite number.</source>
        <translation>评分没有意义，因为有均值不是有限数。</translation>
    </message>
    <message>
        <source>Model </source>
        <translation>模型 </translation>
    </message>
    <message>
        <source>Converted from %1; line numbers are those of the conversion.</source>
        <translation>由 %1 转换而来；行号为转换后文件的行号。</translation>
    </message>
    <message>
        <source>, %1 that name a node twice</source>
        <translation>，%1 个重复引用同一节点</translation>
    </message>
    <message>
        <source>%1 nodes, %2 tetrahedra, %3 inverted, %4 flat</source>
        <translation>%1 个节点，%2 个四面体，%3 个翻转，%4 个扁平</translation>
    </message>
    <message>
        <source>%1 lines skipped: </source>
        <translation>跳过 %1 行：</translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>警告：</translation>
    </message>
    <message>
        <source>metric</source>
        <translation>指标</translation>
    </message>
    <message>
        <source>feature (mean)</source>
        <translation>特征（均值）</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>特征</translation>
    </message>
    <message>
        <source>Histograms</source>
        <translation>直方图</translation>
    </message>
    <message>
        <source>element</source>
        <translation>单元</translation>
    </message>
    <message>
        <source>line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>region</source>
        <translation>区域</translation>
    </message>
    <message>
        <source>Worst elements by %1</source>
        <translation>按 %1 最差的单元</translation>
    </message>
    <message>
        <source>Regions, %1</source>
        <translation>各区域的 %1</translation>
    </message>
    <message>
        <source>warning: </source>
        <translation>警告：</translation>
    </message>
    <message>
        <source>warning: %1 lines skipped: </source>
        <translation>警告：跳过 %1 行：</translation>
    </message>
    <message>
        <source>predict takes no arguments</source>
        <translation>predict 不接受参数</translation>
    </message>
    <message>
        <source>warning: the score is no number; why is told by: meshquality report &apos;%1&apos;</source>
        <translation>警告：评分不是数字；原因请运行：meshquality report &apos;%1&apos;</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>另有 %1 处</translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>%1 至 %2：%3</translation>
    </message>
    <message>
        <source>no finite value</source>
        <translation>没有有限值</translation>
    </message>
    <message>
        <source>    element %1 (line %2), region %3, at %4 %5 %6
</source>
        <translation>    单元 %1（第 %2 行），区域 %3，位于 %4 %5 %6
</translation>
    </message>
    <message>
        <source>  worst by %1:
</source>
        <translation>  按 %1 最差：
</translation>
    </message>
    <message>
        <source>    no finite value
</source>
        <translation>    没有有限值
</translation>
    </message>
    <message>
        <source>  region %1: %2 tetrahedra (%3 inverted, %4 flat)
</source>
        <translation>  区域 %1：%2 个四面体（%3 个翻转，%4 个扁平）
</translation>
    </message>
    <message>
        <source>    %1 tetrahedra name a node twice
</source>
        <translation>    %1 个四面体重复引用同一节点
</translation>
    </message>
    <message>
        <source>  converted from %1; line numbers are those of the conversion
</source>
        <translation>  由 %1 转换而来；行号为转换后文件的行号
</translation>
    </message>
    <message>
        <source>  %1 nodes, %2 tetrahedra (%3 inverted, %4 flat)
</source>
        <translation>  %1 个节点，%2 个四面体（%3 个翻转，%4 个扁平）
</translation>
    </message>
    <message>
        <source>  %1 tetrahedra name a node twice
</source>
        <translation>  %1 个四面体重复引用同一节点
</translation>
    </message>
    <message>
        <source>  %1 lines skipped:
    </source>
        <translation>  跳过 %1 行：
    </translation>
    </message>
    <message>
        <source>out of the range of numbers</source>
        <translation>超出数值范围</translation>
    </message>
    <message>
        <source>    element %1 (line %2): %3
</source>
        <translation>    单元 %1（第 %2 行）：%3
</translation>
    </message>
    <message>
        <source>    and %1 more
</source>
        <translation>    另有 %1 个
</translation>
    </message>
    <message>
        <source>  no finite mean of %1: %2
</source>
        <translation>  %1 的均值不是有限数：%2
</translation>
    </message>
    <message>
        <source>every element has a value and so has the mean, but it is too large for the single precision in which the model takes it</source>
        <translation>每个单元都有数值，均值也有，但超出了模型所用单精度的范围</translation>
    </message>
    <message>
        <source>every element has a value, but their sum is out of range</source>
        <translation>每个单元都有数值，但总和超出范围</translation>
    </message>
    <message>
        <source>these elements have no finite value</source>
        <translation>下列单元没有有限值</translation>
    </message>
    <message>
        <source>  no score: the model cannot be used
</source>
        <translation>  无评分：模型无法使用
</translation>
    </message>
    <message>
        <source>  score </source>
        <translation>  评分 </translation>
    </message>
    <message>
        <source> means nothing</source>
        <translation>没有意义</translation>
    </message>
    <message>
        <source>: there is none</source>
        <translation>：无</translation>
    </message>
    <message>
        <source>, because a mean is no finite number:
</source>
        <translation>，因为有均值不是有限数：
</translation>
    </message>
    <message>
        <source> (0 worst, 1 best)
</source>
        <translation>（0 最差，1 最好）
</translation>
    </message>
    <message>
        <source>: there is none, because the model gives no number for these means
</source>
        <translation>：无，因为模型对这些均值未给出数值
</translation>
    </message>
    <message>
        <source>  warning: </source>
        <translation>  警告：</translation>
    </message>
    <message>
        <source>%1 needs an allowedPercent from 0 to 100</source>
        <translation>%1 的 allowedPercent 应在 0 到 100 之间</translation>
    </message>
</context>
</TS>
