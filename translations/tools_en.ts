<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>console</name>
    <message>
        <source>standard output</source>
        <translation>standard output</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>cannot be written</translation>
    </message>
    <message>
        <source>; see %1 --help</source>
        <translation>; see %1 --help</translation>
    </message>
    <message>
        <source>--language takes &apos;English&apos; or &apos;Chinese&apos;</source>
        <translation>--language takes &apos;English&apos; or &apos;Chinese&apos;</translation>
    </message>
</context>
<context>
    <name>materials</name>
    <message>
        <source>check takes one file</source>
        <translation>check takes one file</translation>
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
        <translation>Material libraries.

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
</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>unknown command &apos;%1&apos;</translation>
    </message>
    <message>
        <source>new</source>
        <translation>new</translation>
    </message>
    <message>
        <source>same</source>
        <translation>same</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>changed</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refused</translation>
    </message>
    <message>
        <source>%1: cannot be written</source>
        <translation>%1: cannot be written</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: cannot be read</translation>
    </message>
    <message>
        <source>import takes a library or a file</source>
        <translation>import takes a library or a file</translation>
    </message>
    <message>
        <source>%1 has no material &apos;%2&apos;</source>
        <translation>%1 has no material &apos;%2&apos;</translation>
    </message>
    <message>
        <source>%1: no such directory</source>
        <translation>%1: no such directory</translation>
    </message>
    <message>
        <source>the last material is a tombstone</source>
        <translation>the last material is a tombstone</translation>
    </message>
    <message>
        <source>is no identifier</source>
        <translation>is no identifier</translation>
    </message>
    <message>
        <source>%1 is taken by %2</source>
        <translation>%1 is taken by %2</translation>
    </message>
    <message>
        <source>is %1, expected %2</source>
        <translation>is %1, expected %2</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>is empty</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is reserved</source>
        <translation>&apos;%1&apos; is reserved</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is also the name of %2</source>
        <translation>&apos;%1&apos; is also the name of %2</translation>
    </message>
    <message>
        <source>unknown member</source>
        <translation>unknown member</translation>
    </message>
    <message>
        <source>is no material</source>
        <translation>is no material</translation>
    </message>
    <message>
        <source>%1:%2: no JSON: %3</source>
        <translation>%1:%2: no JSON: %3</translation>
    </message>
    <message>
        <source>%1:1:1: a JSON object is expected at the root</source>
        <translation>%1:1:1: a JSON object is expected at the root</translation>
    </message>
    <message>
        <source>%1: the root has no list &apos;materialList&apos;</source>
        <translation>%1: the root has no list &apos;materialList&apos;</translation>
    </message>
    <message>
        <source>%1: not enciphered with this key, or damaged; --plain reads plain JSON</source>
        <translation>%1: not enciphered with this key, or damaged; --plain reads plain JSON</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>deleted</translation>
    </message>
    <message>
        <source>live</source>
        <translation>live</translation>
    </message>
    <message>
        <source>  %1 (kind %2, flag %3)
      %4
      %5
</source>
        <translation>  %1 (kind %2, flag %3)
      %4
      %5
</translation>
    </message>
    <message>
        <source>show takes one identifier or name</source>
        <translation>show takes one identifier or name</translation>
    </message>
    <message>
        <source>the %1 library has no material &apos;%2&apos;</source>
        <translation>the %1 library has no material &apos;%2&apos;</translation>
    </message>
    <message>
        <source>kind &apos;%1&apos; is no whole number</source>
        <translation>kind &apos;%1&apos; is no whole number</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; is no number</source>
        <translation>%1 &apos;%2&apos; is no number</translation>
    </message>
    <message>
        <source>flag &apos;%1&apos; is neither 0 nor 1</source>
        <translation>flag &apos;%1&apos; is neither 0 nor 1</translation>
    </message>
    <message>
        <source>%1 cells, expected %2</source>
        <translation>%1 cells, expected %2</translation>
    </message>
    <message>
        <source>id &apos;%1&apos; is no whole number</source>
        <translation>id &apos;%1&apos; is no whole number</translation>
    </message>
    <message>
        <source>property &apos;%1&apos; is not 0 to 5</source>
        <translation>property &apos;%1&apos; is not 0 to 5</translation>
    </message>
    <message>
        <source>material %1, property %2: %3 components do not fit the nine columns of CSV</source>
        <translation>material %1, property %2: %3 components do not fit the nine columns of CSV</translation>
    </message>
    <message>
        <source>%1:1: the head line is not &apos;%2&apos;</source>
        <translation>%1:1: the head line is not &apos;%2&apos;</translation>
    </message>
    <message>
        <source>--library takes &apos;software&apos; or &apos;project:DIR&apos;, not &apos;%1&apos;</source>
        <translation>--library takes &apos;software&apos; or &apos;project:DIR&apos;, not &apos;%1&apos;</translation>
    </message>
    <message>
        <source>--format takes &apos;csv&apos; or &apos;json&apos;, not &apos;%1&apos;</source>
        <translation>--format takes &apos;csv&apos; or &apos;json&apos;, not &apos;%1&apos;</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>unknown option &apos;%1&apos;</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <translation>%1 needs a value</translation>
    </message>
    <message>
        <source>has %1 values, expected 9</source>
        <translation>has %1 values, expected 9</translation>
    </message>
    <message>
        <source>is no number</source>
        <translation>is no number</translation>
    </message>
    <message>
        <source>is %1</source>
        <translation>is %1</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>is missing</translation>
    </message>
    <message>
        <source>is of another type</source>
        <translation>is of another type</translation>
    </message>
    <message>
        <source>is no property</source>
        <translation>is no property</translation>
    </message>
    <message>
        <source>is no whole number</source>
        <translation>is no whole number</translation>
    </message>
</context>
<context>
    <name>meshquality</name>
    <message>
        <source>%1 %2 elements (%3 %)</source>
        <translation>%1 %2 elements (%3 %)</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>fail</translation>
    </message>
    <message>
        <source>warn</source>
        <translation>warn</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>pass</translation>
    </message>
    <message>
        <source>--profile needs a file</source>
        <translation>--profile needs a file</translation>
    </message>
    <message>
        <source>no mesh is given</source>
        <translation>no mesh is given</translation>
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
        <translation>Quality of tetrahedral meshes in MSH 2 ASCII and VTK XML (.vtu); with gmsh on the path in any MSH.

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
</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>no command is given</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>unknown command &apos;%1&apos;</translation>
    </message>
    <message>
        <source>  meets the contract of a quality model
</source>
        <translation>  meets the contract of a quality model
</translation>
    </message>
    <message>
        <source>  does not meet the contract: </source>
        <translation>  does not meet the contract: </translation>
    </message>
    <message>
        <source>  scores %1 for ordinary features, %2 for zeros, %3 for NaN
</source>
        <translation>  scores %1 for ordinary features, %2 for zeros, %3 for NaN
</translation>
    </message>
    <message>
        <source>any</source>
        <translation>any</translation>
    </message>
    <message>
        <source>  remark: </source>
        <translation>  remark: </translation>
    </message>
    <message>
        <source>model takes one file</source>
        <translation>model takes one file</translation>
    </message>
    <message>
        <source>%1 %2 lies outside of the range that the model was trained on, %3 to %4</source>
        <translation>%1 %2 lies outside of the range that the model was trained on, %3 to %4</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>no such file</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>not a regular file</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>cannot be opened</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>cannot be read</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>is empty</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelled</translation>
    </message>
    <message>
        <source>no tetrahedra</source>
        <translation>no tetrahedra</translation>
    </message>
    <message>
        <source>a node needs four columns</source>
        <translation>a node needs four columns</translation>
    </message>
    <message>
        <source>a tetrahedron needs nine columns</source>
        <translation>a tetrahedron needs nine columns</translation>
    </message>
    <message>
        <source>names a node that is not there (nodes are numbered by their place in the file)</source>
        <translation>names a node that is not there (nodes are numbered by their place in the file)</translation>
    </message>
    <message>
        <source>not a VTK XML unstructured grid</source>
        <translation>not a VTK XML unstructured grid</translation>
    </message>
    <message>
        <source>a damaged VTK XML unstructured grid</source>
        <translation>a damaged VTK XML unstructured grid</translation>
    </message>
    <message>
        <source>a VTK XML unstructured grid that does not fit into the memory</source>
        <translation>a VTK XML unstructured grid that does not fit into the memory</translation>
    </message>
    <message>
        <source>there is no room for temporary files</source>
        <translation>there is no room for temporary files</translation>
    </message>
    <message>
        <source>there is no metric &apos;%1&apos;</source>
        <translation>there is no metric &apos;%1&apos;</translation>
    </message>
    <message>
        <source>%1 needs a number as minimum or maximum</source>
        <translation>%1 needs a number as minimum or maximum</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 at byte %2</translation>
    </message>
    <message>
        <source>has no list of thresholds</source>
        <translation>has no list of thresholds</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>cannot be written</translation>
    </message>
    <message>
        <source>--worst needs a number from 1</source>
        <translation>--worst needs a number from 1</translation>
    </message>
    <message>
        <source>--by goes with --worst</source>
        <translation>--by goes with --worst</translation>
    </message>
    <message>
        <source>--%1 needs a file</source>
        <translation>--%1 needs a file</translation>
    </message>
    <message>
        <source>--vtu goes with one mesh</source>
        <translation>--vtu goes with one mesh</translation>
    </message>
    <message>
        <source>--jsonl and --json - both need standard output</source>
        <translation>--jsonl and --json - both need standard output</translation>
    </message>
    <message>
        <source>same</source>
        <translation>same</translation>
    </message>
    <message>
        <source>improved</source>
        <translation>improved</translation>
    </message>
    <message>
        <source>worsened</source>
        <translation>worsened</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>mean</translation>
    </message>
    <message>
        <source>median</source>
        <translation>median</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>maximum</translation>
    </message>
    <message>
        <source>minimum</source>
        <translation>minimum</translation>
    </message>
    <message>
        <source>nodes</source>
        <translation>nodes</translation>
    </message>
    <message>
        <source>tetrahedra</source>
        <translation>tetrahedra</translation>
    </message>
    <message>
        <source>inverted</source>
        <translation>inverted</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>flat</translation>
    </message>
    <message>
        <source>score</source>
        <translation>score</translation>
    </message>
    <message>
        <source>  model </source>
        <translation>  model </translation>
    </message>
    <message>
        <source>  warning: %1: %2
</source>
        <translation>  warning: %1: %2
</translation>
    </message>
    <message>
        <source>compare needs two meshes</source>
        <translation>compare needs two meshes</translation>
    </message>
    <message>
        <source>Mesh quality</source>
        <translation>Mesh quality</translation>
    </message>
    <message>
        <source>There is no score, because the model cannot be used.</source>
        <translation>There is no score, because the model cannot be used.</translation>
    </message>
    <message>
        <source>There is no score, because the model gives no number.</source>
        <translation>There is no score, because the model gives no number.</translation>
    </message>
    <message>
        <source>There is no score, because a mean is no finite number.</source>
        <translation>There is no score, because a mean is no finite number.</translation>
    </message>
    <message>
        <source>score (0 worst, 1 best)</source>
        <translation>score (0 worst, 1 best)</translation>
    </message>
    <message>
        <source>The score means nothing, because a mean is no finite number.</source>
        <translation>The score means nothing, because a mean is no finite number.</translation>
    </message>
    <message>
        <source>Model </source>
        <translation>Model </translation>
    </message>
    <message>
        <source>Converted from %1; line numbers are those of the conversion.</source>
        <translation>Converted from %1; line numbers are those of the conversion.</translation>
    </message>
    <message>
        <source>, %1 that name a node twice</source>
        <translation>, %1 that name a node twice</translation>
    </message>
    <message>
        <source>%1 nodes, %2 tetrahedra, %3 inverted, %4 flat</source>
        <translation>%1 nodes, %2 tetrahedra, %3 inverted, %4 flat</translation>
    </message>
    <message>
        <source>%1 lines skipped: </source>
        <translation>%1 lines skipped: </translation>
    </message>
    <message>
        <source>Warning: </source>
        <translation>Warning: </translation>
    </message>
    <message>
        <source>metric</source>
        <translation>metric</translation>
    </message>
    <message>
        <source>feature (mean)</source>
        <translation>feature (mean)</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Features</translation>
    </message>
    <message>
        <source>Histograms</source>
        <translation>Histograms</translation>
    </message>
    <message>
        <source>element</source>
        <translation>element</translation>
    </message>
    <message>
        <source>line</source>
        <translation>line</translation>
    </message>
    <message>
        <source>region</source>
        <translation>region</translation>
    </message>
    <message>
        <source>Worst elements by %1</source>
        <translation>Worst elements by %1</translation>
    </message>
    <message>
        <source>Regions, %1</source>
        <translation>Regions, %1</translation>
    </message>
    <message>
        <source>warning: </source>
        <translation>warning: </translation>
    </message>
    <message>
        <source>warning: %1 lines skipped: </source>
        <translation>warning: %1 lines skipped: </translation>
    </message>
    <message>
        <source>predict takes no arguments</source>
        <translation>predict takes no arguments</translation>
    </message>
    <message>
        <source>warning: the score is no number; why is told by: meshquality report &apos;%1&apos;</source>
        <translation>warning: the score is no number; why is told by: meshquality report &apos;%1&apos;</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>line %1: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>%1 to %2: %3</source>
        <translation>%1 to %2: %3</translation>
    </message>
    <message>
        <source>no finite value</source>
        <translation>no finite value</translation>
    </message>
    <message>
        <source>    element %1 (line %2), region %3, at %4 %5 %6
</source>
        <translation>    element %1 (line %2), region %3, at %4 %5 %6
</translation>
    </message>
    <message>
        <source>  worst by %1:
</source>
        <translation>  worst by %1:
</translation>
    </message>
    <message>
        <source>    no finite value
</source>
        <translation>    no finite value
</translation>
    </message>
    <message>
        <source>  region %1: %2 tetrahedra (%3 inverted, %4 flat)
</source>
        <translation>  region %1: %2 tetrahedra (%3 inverted, %4 flat)
</translation>
    </message>
    <message>
        <source>    %1 tetrahedra name a node twice
</source>
        <translation>    %1 tetrahedra name a node twice
</translation>
    </message>
    <message>
        <source>  converted from %1; line numbers are those of the conversion
</source>
        <translation>  converted from %1; line numbers are those of the conversion
</translation>
    </message>
    <message>
        <source>  %1 nodes, %2 tetrahedra (%3 inverted, %4 flat)
</source>
        <translation>  %1 nodes, %2 tetrahedra (%3 inverted, %4 flat)
</translation>
    </message>
    <message>
        <source>  %1 tetrahedra name a node twice
</source>
        <translation>  %1 tetrahedra name a node twice
</translation>
    </message>
    <message>
        <source>  %1 lines skipped:
    </source>
        <translation>  %1 lines skipped:
    </translation>
    </message>
    <message>
        <source>out of the range of numbers</source>
        <translation>out of the range of numbers</translation>
    </message>
    <message>
        <source>    element %1 (line %2): %3
</source>
        <translation>    element %1 (line %2): %3
</translation>
    </message>
    <message>
        <source>    and %1 more
</source>
        <translation>    and %1 more
</translation>
    </message>
    <message>
        <source>  no finite mean of %1: %2
</source>
        <translation>  no finite mean of %1: %2
</translation>
    </message>
    <message>
        <source>every element has a value and so has the mean, but it is too large for the single precision in which the model takes it</source>
        <translation>every element has a value and so has the mean, but it is too large for the single precision in which the model takes it</translation>
    </message>
    <message>
        <source>every element has a value, but their sum is out of range</source>
        <translation>every element has a value, but their sum is out of range</translation>
    </message>
    <message>
        <source>these elements have no finite value</source>
        <translation>these elements have no finite value</translation>
    </message>
    <message>
        <source>  no score: the model cannot be used
</source>
        <translation>  no score: the model cannot be used
</translation>
    </message>
    <message>
        <source>  score </source>
        <translation>  score </translation>
    </message>
    <message>
        <source> means nothing</source>
        <translation> means nothing</translation>
    </message>
    <message>
        <source>: there is none</source>
        <translation>: there is none</translation>
    </message>
    <message>
        <source>, because a mean is no finite number:
</source>
        <translation>, because a mean is no finite number:
</translation>
    </message>
    <message>
        <source> (0 worst, 1 best)
</source>
        <translation> (0 worst, 1 best)
</translation>
    </message>
    <message>
        <source>: there is none, because the model gives no number for these means
</source>
        <translation>: there is none, because the model gives no number for these means
</translation>
    </message>
    <message>
        <source>  warning: </source>
        <translation>  warning: </translation>
    </message>
    <message>
        <source>%1 needs an allowedPercent from 0 to 100</source>
        <translation>%1 needs an allowedPercent from 0 to 100</translation>
    </message>
</context>
</TS>
