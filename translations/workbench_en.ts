<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>Workbench::AngleFields</name>
    <message>
        <source>degrees</source>
        <translation>degrees</translation>
    </message>
    <message>
        <source>radians</source>
        <translation>radians</translation>
    </message>
    <message>
        <source>Right-handed, about the fixed axes of the basic system (extrinsic): first about x, then about y, then about z.</source>
        <translation>Right-handed, about the fixed axes of the basic system (extrinsic): first about x, then about y, then about z.</translation>
    </message>
    <message>
        <source>Rotation about x, y, z, &amp;in</source>
        <translation>Rotation about x, y, z, &amp;in</translation>
    </message>
    <message>
        <source>Rotation about x</source>
        <translation>Rotation about x</translation>
    </message>
    <message>
        <source>Rotation about y</source>
        <translation>Rotation about y</translation>
    </message>
    <message>
        <source>Rotation about z</source>
        <translation>Rotation about z</translation>
    </message>
</context>
<context>
    <name>Workbench::CheckProfile</name>
    <message>
        <source>%1 (built in)</source>
        <translation>%1 (built in)</translation>
    </message>
    <message>
        <source>The profile %1 cannot be used: %2</source>
        <translation>The profile %1 cannot be used: %2</translation>
    </message>
</context>
<context>
    <name>Workbench::CheckTable</name>
    <message>
        <source>at least %1</source>
        <translation>at least %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>at most %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>Profile...</source>
        <translation>Profile...</translation>
    </message>
    <message>
        <source>Checks against the thresholds of a file, as &apos;meshquality check --profile&apos; does</source>
        <translation>Checks against the thresholds of a file, as &apos;meshquality check --profile&apos; does</translation>
    </message>
    <message>
        <source>Built in</source>
        <translation>Built in</translation>
    </message>
    <message>
        <source>Checks against the thresholds that are built into the programs</source>
        <translation>Checks against the thresholds that are built into the programs</translation>
    </message>
    <message>
        <source>Select outside</source>
        <translation>Select outside</translation>
    </message>
    <message>
        <source>Selects the elements outside of the marked thresholds, or of all when none is marked</source>
        <translation>Selects the elements outside of the marked thresholds, or of all when none is marked</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metric</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>Wanted</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Outside</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Allowed</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Checks</translation>
    </message>
    <message>
        <source>Profile: %1</source>
        <translation>Profile: %1</translation>
    </message>
</context>
<context>
    <name>Workbench::CommandLine</name>
    <message>
        <source>Materials, coordinate systems and meshes of a simulation on the desktop.

  workbench [OPTION...] [FILE]
      Opens a project (.wbproj), a mesh (.msh, version 2 in ASCII) or a geometry (.geo, .step, .brep, .iges).
  workbench --help
  workbench --version

  --language L  the language of the window, this time: English or Chinese

Options of every Qt program, such as -platform, are taken as well. The mesher is the program gmsh, or the one
that the environment variable WORKBENCH_GMSH names.

Exit codes: 0 ok, 2 wrong call, 3 FILE cannot be read
</source>
        <translation>Materials, coordinate systems and meshes of a simulation on the desktop.

  workbench [OPTION...] [FILE]
      Opens a project (.wbproj), a mesh (.msh, version 2 in ASCII) or a geometry (.geo, .step, .brep, .iges).
  workbench --help
  workbench --version

  --language L  the language of the window, this time: English or Chinese

Options of every Qt program, such as -platform, are taken as well. The mesher is the program gmsh, or the one
that the environment variable WORKBENCH_GMSH names.

Exit codes: 0 ok, 2 wrong call, 3 FILE cannot be read
</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>there is no such file</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>it is not a regular file</translation>
    </message>
    <message>
        <source>you may not read it</source>
        <translation>you may not read it</translation>
    </message>
    <message>
        <source>unknown option &apos;%1&apos;</source>
        <translation>unknown option &apos;%1&apos;</translation>
    </message>
    <message>
        <source>more than one file</source>
        <translation>more than one file</translation>
    </message>
</context>
<context>
    <name>Workbench::CoordinateDialog</name>
    <message>
        <source>New coordinate system</source>
        <translation>New coordinate system</translation>
    </message>
    <message>
        <source>Coordinate system %1</source>
        <translation>Coordinate system %1</translation>
    </message>
    <message>
        <source>%1 (itself)</source>
        <translation>%1 (itself)</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (missing)</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Relative to</source>
        <translation>&amp;Relative to</translation>
    </message>
    <message>
        <source>&amp;Coordinates given as</source>
        <translation>&amp;Coordinates given as</translation>
    </message>
    <message>
        <source>&amp;Origin x, y, z, in units of the model</source>
        <translation>&amp;Origin x, y, z, in units of the model</translation>
    </message>
    <message>
        <source>&amp;Keep the place: convert the values when another system is chosen</source>
        <translation>&amp;Keep the place: convert the values when another system is chosen</translation>
    </message>
    <message>
        <source>Origin x</source>
        <translation>Origin x</translation>
    </message>
    <message>
        <source>Origin y</source>
        <translation>Origin y</translation>
    </message>
    <message>
        <source>Origin z</source>
        <translation>Origin z</translation>
    </message>
    <message>
        <source>The project&apos;s file of coordinate systems is damaged, and no copy of it can be kept beside it: is there space, and permission?</source>
        <translation>The project&apos;s file of coordinate systems is damaged, and no copy of it can be kept beside it: is there space, and permission?</translation>
    </message>
</context>
<context>
    <name>Workbench::CoordinateDock</name>
    <message>
        <source>its basic system %1 is missing; placed as if global</source>
        <translation>its basic system %1 is missing; placed as if global</translation>
    </message>
    <message>
        <source>its basic system %1 leads back to it; placed as if global</source>
        <translation>its basic system %1 leads back to it; placed as if global</translation>
    </message>
    <message>
        <source>Coordinate systems</source>
        <translation>Coordinate systems</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Fault</translation>
    </message>
    <message>
        <source>New below...</source>
        <translation>New below...</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Change...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Delete...</translation>
    </message>
    <message>
        <source>Make current</source>
        <translation>Make current</translation>
    </message>
    <message>
        <source>Show axes</source>
        <translation>Show axes</translation>
    </message>
</context>
<context>
    <name>Workbench::CoordinateName</name>
    <message>
        <source>Cartesian</source>
        <translation>Cartesian</translation>
    </message>
    <message>
        <source>Cylindrical</source>
        <translation>Cylindrical</translation>
    </message>
    <message>
        <source>Spherical</source>
        <translation>Spherical</translation>
    </message>
    <message>
        <source>A coordinate system needs a name.</source>
        <translation>A coordinate system needs a name.</translation>
    </message>
    <message>
        <source>Coordinate system %1 is already called &apos;%2&apos;.</source>
        <translation>Coordinate system %1 is already called &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
</context>
<context>
    <name>Workbench::CoordinateSystems</name>
    <message>
        <source>There is no coordinate system %1.</source>
        <translation>There is no coordinate system %1.</translation>
    </message>
    <message>
        <source>A coordinate system cannot be relative to itself.</source>
        <translation>A coordinate system cannot be relative to itself.</translation>
    </message>
    <message>
        <source>%1 is itself relative to this system, directly or through others: that would be a loop.</source>
        <translation>%1 is itself relative to this system, directly or through others: that would be a loop.</translation>
    </message>
    <message>
        <source>The library builds a system anew only where its identifier is above 0.</source>
        <translation>The library builds a system anew only where its identifier is above 0.</translation>
    </message>
</context>
<context>
    <name>Workbench::CoordinateValues</name>
    <message>
        <source>In the basic system</source>
        <translation>In the basic system</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Origin x</source>
        <translation>Origin x</translation>
    </message>
    <message>
        <source>Origin y</source>
        <translation>Origin y</translation>
    </message>
    <message>
        <source>Origin z</source>
        <translation>Origin z</translation>
    </message>
    <message>
        <source>Rotation x [deg]</source>
        <translation>Rotation x [deg]</translation>
    </message>
    <message>
        <source>Rotation y [deg]</source>
        <translation>Rotation y [deg]</translation>
    </message>
    <message>
        <source>Rotation z [deg]</source>
        <translation>Rotation z [deg]</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Property</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Values</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Properties</translation>
    </message>
</context>
<context>
    <name>Workbench::DeleteQuestion</name>
    <message>
        <source>%1: projects keep the copies that they have of it.</source>
        <translation>%1: projects keep the copies that they have of it.</translation>
    </message>
    <message>
        <source>%1: no volume uses it.</source>
        <translation>%1: no volume uses it.</translation>
    </message>
    <message>
        <source>%1 is used by: %2. They become free space.</source>
        <translation>%1 is used by: %2. They become free space.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>Delete these materials?</source>
        <translation>Delete these materials?</translation>
    </message>
</context>
<context>
    <name>Workbench::GeometryManager</name>
    <message>
        <source>surface group %1</source>
        <translation>surface group %1</translation>
    </message>
    <message>
        <source>face %1</source>
        <translation>face %1</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>volume %1</translation>
    </message>
</context>
<context>
    <name>Workbench::HistogramView</name>
    <message>
        <source>no finite value</source>
        <translation>no finite value</translation>
    </message>
    <message>
        <source>up to %1 elements</source>
        <translation>up to %1 elements</translation>
    </message>
    <message>
        <source>%1 to %2: %3 elements</source>
        <translation>%1 to %2: %3 elements</translation>
    </message>
    <message>
        <source>A click selects them, dragging those of several bars; hold Ctrl to add.
By keys: arrows mark a bar, with Shift several; Space or Enter selects.</source>
        <translation>A click selects them, dragging those of several bars; hold Ctrl to add.
By keys: arrows mark a bar, with Shift several; Space or Enter selects.</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>Histogram</translation>
    </message>
</context>
<context>
    <name>Workbench::ImportDialog</name>
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
        <source>refused: reserved name</source>
        <translation>refused: reserved name</translation>
    </message>
    <message>
        <source>Copy from: %1, to: %2</source>
        <translation>Copy from: %1, to: %2</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Here</translation>
    </message>
    <message>
        <source>There</source>
        <translation>There</translation>
    </message>
    <message>
        <source>%1 new, %2 same, %3 changed, %4 refused. Checked materials are copied; a changed one replaces the material of its name.</source>
        <translation>%1 new, %2 same, %3 changed, %4 refused. Checked materials are copied; a changed one replaces the material of its name.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparison</translation>
    </message>
    <message>
        <source>refused: material %1 there is called &apos;%2&apos;, too</source>
        <translation>refused: material %1 there is called &apos;%2&apos;, too</translation>
    </message>
</context>
<context>
    <name>Workbench::ImportRefusal</name>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; would both replace &apos;%3&apos;: only one can.</source>
        <translation>&apos;%1&apos; and &apos;%2&apos; would both replace &apos;%3&apos;: only one can.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be copied: &apos;%2&apos; there would be called &apos;%3&apos;, too.</source>
        <translation>&apos;%1&apos; cannot be copied: &apos;%2&apos; there would be called &apos;%3&apos;, too.</translation>
    </message>
</context>
<context>
    <name>Workbench::KeptSettings</name>
    <message>
        <source>Layout, language, favourites and recent projects are forgotten when the program ends: %1 cannot be written.</source>
        <translation>Layout, language, favourites and recent projects are forgotten when the program ends: %1 cannot be written.</translation>
    </message>
</context>
<context>
    <name>Workbench::KernelChoice</name>
    <message>
        <source>The mesh that is shown (%1)</source>
        <translation>The mesh that is shown (%1)</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Mesh</translation>
    </message>
    <message>
        <source>The mesh whose figures are shown</source>
        <translation>The mesh whose figures are shown</translation>
    </message>
</context>
<context>
    <name>Workbench::LibraryPane</name>
    <message>
        <source>Search names and properties</source>
        <translation>Search names and properties</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>New...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Edit...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>Delete...</translation>
    </message>
    <message>
        <source>Copy to the project...</source>
        <translation>Copy to the project...</translation>
    </message>
    <message>
        <source>Copy to the software library...</source>
        <translation>Copy to the software library...</translation>
    </message>
    <message>
        <source>Compares the selected materials, or all when none is selected, before it copies.</source>
        <translation>Compares the selected materials, or all when none is selected, before it copies.</translation>
    </message>
    <message>
        <source>Search in: %1</source>
        <translation>Search in: %1</translation>
    </message>
    <message>
        <source>Only favourites</source>
        <translation>Only favourites</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favourite</translation>
    </message>
    <message>
        <source>Marks the selected materials with a star, or takes the stars away</source>
        <translation>Marks the selected materials with a star, or takes the stars away</translation>
    </message>
</context>
<context>
    <name>Workbench::MainWindow</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>Workbench</source>
        <translation>Workbench</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;New project</source>
        <translation>&amp;New project</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Open…</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Recent projects</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Save &amp;as…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Undo selection</source>
        <translation>&amp;Undo selection</translation>
    </message>
    <message>
        <source>&amp;Redo selection</source>
        <translation>&amp;Redo selection</translation>
    </message>
    <message>
        <source>&amp;Clear selection</source>
        <translation>&amp;Clear selection</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Select</translation>
    </message>
    <message>
        <source>Select (hold Ctrl for several)</source>
        <translation>Select (hold Ctrl for several)</translation>
    </message>
    <message>
        <source>Rotate (hold Alt)</source>
        <translation>Rotate (hold Alt)</translation>
    </message>
    <message>
        <source>Translate (hold Shift)</source>
        <translation>Translate (hold Shift)</translation>
    </message>
    <message>
        <source>Draw a measuring line</source>
        <translation>Draw a measuring line</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>Volumes</translation>
    </message>
    <message>
        <source>Faces</source>
        <translation>Faces</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodes</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elements</translation>
    </message>
    <message>
        <source>Element groups</source>
        <translation>Element groups</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Fit</translation>
    </message>
    <message>
        <source>&amp;Isometric</source>
        <translation>&amp;Isometric</translation>
    </message>
    <message>
        <source>F&amp;ront</source>
        <translation>F&amp;ront</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Back</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Left</translation>
    </message>
    <message>
        <source>Ri&amp;ght</source>
        <translation>Ri&amp;ght</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Top</translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation>B&amp;ottom</translation>
    </message>
    <message>
        <source>&amp;Edges</source>
        <translation>&amp;Edges</translation>
    </message>
    <message>
        <source>Tra&amp;nsparent</source>
        <translation>Tra&amp;nsparent</translation>
    </message>
    <message>
        <source>Save &amp;picture…</source>
        <translation>Save &amp;picture…</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Panels</translation>
    </message>
    <message>
        <source>&amp;Mesh</source>
        <translation>&amp;Mesh</translation>
    </message>
    <message>
        <source>&amp;Mesh the geometry…</source>
        <translation>&amp;Mesh the geometry…</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <source>Prepares geometry, materials and meshes for simulation.
Version %1</source>
        <translation>Prepares geometry, materials and meshes for simulation.
Version %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Projects (*.%1)</source>
        <translation>Projects (*.%1)</translation>
    </message>
    <message>
        <source>All that can be opened (*.%1 *.msh *.geo *.step *.stp *.brep *.iges *.igs)</source>
        <translation>All that can be opened (*.%1 *.msh *.geo *.step *.stp *.brep *.iges *.igs)</translation>
    </message>
    <message>
        <source>Meshes (*.msh)</source>
        <translation>Meshes (*.msh)</translation>
    </message>
    <message>
        <source>Geometry (*.geo *.step *.stp *.brep *.iges *.igs)</source>
        <translation>Geometry (*.geo *.step *.stp *.brep *.iges *.igs)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Save the project</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Unsaved changes</translation>
    </message>
    <message>
        <source>Save the changes to “%1” first?</source>
        <translation>Save the changes to “%1” first?</translation>
    </message>
    <message>
        <source>Save a picture of the view</source>
        <translation>Save a picture of the view</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg)</source>
        <translation>Pictures (*.png *.jpg)</translation>
    </message>
    <message>
        <source>Coordinate axes</source>
        <translation>Coordinate axes</translation>
    </message>
    <message>
        <source>&amp;Name the selection…</source>
        <translation>&amp;Name the selection…</translation>
    </message>
    <message>
        <source>Name the selection</source>
        <translation>Name the selection</translation>
    </message>
    <message>
        <source>Name of the set or group:</source>
        <translation>Name of the set or group:</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Opening %1</translation>
    </message>
    <message>
        <source>Saving “%1”</source>
        <translation>Saving “%1”</translation>
    </message>
    <message>
        <source>Meshing is under way</source>
        <translation>Meshing is under way</translation>
    </message>
    <message>
        <source>The geometry is being meshed. This stops it.</source>
        <translation>The geometry is being meshed. This stops it.</translation>
    </message>
    <message>
        <source>One file is opened at a time: of %1 only %2.</source>
        <translation>One file is opened at a time: of %1 only %2.</translation>
    </message>
    <message>
        <source>Go on?</source>
        <translation>Go on?</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialDialog</name>
    <message>
        <source>New material - %1</source>
        <translation>New material - %1</translation>
    </message>
    <message>
        <source>Material %1 - %2</source>
        <translation>Material %1 - %2</translation>
    </message>
    <message>
        <source>Property %1</source>
        <translation>Property %1</translation>
    </message>
    <message>
        <source>&amp;English name</source>
        <translation>&amp;English name</translation>
    </message>
    <message>
        <source>&amp;Chinese name</source>
        <translation>&amp;Chinese name</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Properties</translation>
    </message>
    <message>
        <source>%1, component %2: %3</source>
        <translation>%1, component %2: %3</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialDock</name>
    <message>
        <source>Materials</source>
        <translation>Materials</translation>
    </message>
    <message>
        <source>Assign to the volumes</source>
        <translation>Assign to the volumes</translation>
    </message>
    <message>
        <source>Make free space</source>
        <translation>Make free space</translation>
    </message>
    <message>
        <source>Select volumes to give them a material.</source>
        <translation>Select volumes to give them a material.</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>Selected: %1</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialLibraries</name>
    <message>
        <source>The change is not in the library&apos;s file yet. %1</source>
        <translation>The change is not in the library&apos;s file yet. %1</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialName</name>
    <message>
        <source>A material needs an English and a Chinese name.</source>
        <translation>A material needs an English and a Chinese name.</translation>
    </message>
    <message>
        <source>Material %1 of the same library is already called &apos;%2&apos;.</source>
        <translation>Material %1 of the same library is already called &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is reserved: it names the default material, which fills every volume without a material.</source>
        <translation>&apos;%1&apos; is reserved: it names the default material, which fills every volume without a material.</translation>
    </message>
    <message>
        <source>Project library</source>
        <translation>Project library</translation>
    </message>
    <message>
        <source>Software library</source>
        <translation>Software library</translation>
    </message>
    <message>
        <source>free space</source>
        <translation>free space</translation>
    </message>
    <message>
        <source>material %1, which is missing</source>
        <translation>material %1, which is missing</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialNumber</name>
    <message>
        <source>A new material would get number %1, which volume &apos;%2&apos; has from a material that is missing. Give the volumes with this number another material, or make them free space, first.</source>
        <translation>A new material would get number %1, which volume &apos;%2&apos; has from a material that is missing. Give the volumes with this number another material, or make them free space, first.</translation>
    </message>
    <message>
        <source>A new material would get number %1 and replace &apos;%2&apos;: the numbers of this library have gaps. To make room, copy &apos;%2&apos; to the other library and delete it here; afterwards copy it back and assign it again.</source>
        <translation>A new material would get number %1 and replace &apos;%2&apos;: the numbers of this library have gaps. To make room, copy &apos;%2&apos; to the other library and delete it here; afterwards copy it back and assign it again.</translation>
    </message>
</context>
<context>
    <name>Workbench::MaterialTable</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>English name</source>
        <translation>English name</translation>
    </message>
    <message>
        <source>Chinese name</source>
        <translation>Chinese name</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Properties</translation>
    </message>
    <message>
        <source>this project</source>
        <translation>this project</translation>
    </message>
    <message>
        <source>software library, %1 (%2), edited</source>
        <translation>software library, %1 (%2), edited</translation>
    </message>
    <message>
        <source>software library, %1 (%2)</source>
        <translation>software library, %1 (%2)</translation>
    </message>
    <message>
        <source>a favourite</source>
        <translation>a favourite</translation>
    </message>
    <message>
        <source>no favourite</source>
        <translation>no favourite</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>Origin</translation>
    </message>
</context>
<context>
    <name>Workbench::MeshLoader</name>
    <message>
        <source>it cannot be copied to %1</source>
        <translation>it cannot be copied to %1</translation>
    </message>
</context>
<context>
    <name>Workbench::MeshManager</name>
    <message>
        <source>volume %1</source>
        <translation>volume %1</translation>
    </message>
    <message>
        <source>The mesh %1 cannot be opened: %2</source>
        <translation>The mesh %1 cannot be opened: %2</translation>
    </message>
</context>
<context>
    <name>Workbench::MesherProcess</name>
    <message>
        <source>The mesher is still at work. Wait until it is done, or cancel it.</source>
        <translation>The mesher is still at work. Wait until it is done, or cancel it.</translation>
    </message>
    <message>
        <source>The mesher gmsh was not found. Install it (Debian: apt install gmsh), or let the environment variable WORKBENCH_GMSH name the program.</source>
        <translation>The mesher gmsh was not found. Install it (Debian: apt install gmsh), or let the environment variable WORKBENCH_GMSH name the program.</translation>
    </message>
    <message>
        <source>The mesher could not be started: %1</source>
        <translation>The mesher could not be started: %1</translation>
    </message>
    <message>
        <source>The mesher crashed on %1. The mesh that was open stays.</source>
        <translation>The mesher crashed on %1. The mesh that was open stays.</translation>
    </message>
    <message>
        <source>The mesher could not mesh %1 (exit code %2): %3</source>
        <translation>The mesher could not mesh %1 (exit code %2): %3</translation>
    </message>
    <message>
        <source>it gave no reason</source>
        <translation>it gave no reason</translation>
    </message>
    <message>
        <source>The mesh of %1 could not be moved to %2.</source>
        <translation>The mesh of %1 could not be moved to %2.</translation>
    </message>
</context>
<context>
    <name>Workbench::MeshingDialog</name>
    <message>
        <source>Mesh the geometry</source>
        <translation>Mesh the geometry</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Mesh</translation>
    </message>
    <message>
        <source>as the geometry says</source>
        <translation>as the geometry says</translation>
    </message>
    <message>
        <source>In the unit of the geometry, with a point as decimal separator, for example 2.5e-3</source>
        <translation>In the unit of the geometry, with a point as decimal separator, for example 2.5e-3</translation>
    </message>
    <message>
        <source>Geometry:</source>
        <translation>Geometry:</translation>
    </message>
    <message>
        <source>Largest element size:</source>
        <translation>Largest element size:</translation>
    </message>
    <message>
        <source>A size is a positive number with a point, such as 0.01.</source>
        <translation>A size is a positive number with a point, such as 0.01.</translation>
    </message>
</context>
<context>
    <name>Workbench::MessagePanel</name>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Mesher output</source>
        <translation>Mesher output</translation>
    </message>
</context>
<context>
    <name>Workbench::NamedSelections</name>
    <message>
        <source>A name must not be empty.</source>
        <translation>A name must not be empty.</translation>
    </message>
    <message>
        <source>The name “%1” is taken.</source>
        <translation>The name “%1” is taken.</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>group %1</translation>
    </message>
    <message>
        <source>set %1</source>
        <translation>set %1</translation>
    </message>
</context>
<context>
    <name>Workbench::NumberField</name>
    <message>
        <source>A number is missing.</source>
        <translation>A number is missing.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has a comma. Write the decimal mark as a point, and thousands without a mark.</source>
        <translation>&apos;%1&apos; has a comma. Write the decimal mark as a point, and thousands without a mark.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a decimal number such as 0.5 or 1e-12.</source>
        <translation>&apos;%1&apos; is not a decimal number such as 0.5 or 1e-12.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a finite number.</source>
        <translation>&apos;%1&apos; is not a finite number.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is too large: the largest number is about 1.8e308.</source>
        <translation>&apos;%1&apos; is too large: the largest number is about 1.8e308.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; would become 0: the smallest number above it is about 5e-324.</source>
        <translation>&apos;%1&apos; would become 0: the smallest number above it is about 5e-324.</translation>
    </message>
</context>
<context>
    <name>Workbench::Project</name>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>The project %1 cannot be saved: %2</source>
        <translation>The project %1 cannot be saved: %2</translation>
    </message>
    <message>
        <source>its working files could not be written</source>
        <translation>its working files could not be written</translation>
    </message>
    <message>
        <source>The geometry %1 cannot be opened: %2</source>
        <translation>The geometry %1 cannot be opened: %2</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>it cannot be read</translation>
    </message>
    <message>
        <source>No working directory can be made in %1: %2</source>
        <translation>No working directory can be made in %1: %2</translation>
    </message>
    <message>
        <source>is there space, and permission?</source>
        <translation>is there space, and permission?</translation>
    </message>
    <message>
        <source>no working directory can be made</source>
        <translation>no working directory can be made</translation>
    </message>
    <message>
        <source>The project %1 cannot be opened: %2</source>
        <translation>The project %1 cannot be opened: %2</translation>
    </message>
    <message>
        <source>The materials of the project %1 cannot be read: %2</source>
        <translation>The materials of the project %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>they were saved with another key, or are damaged. The file is kept in the project</source>
        <translation>they were saved with another key, or are damaged. The file is kept in the project</translation>
    </message>
    <message>
        <source>another one is being opened</source>
        <translation>another one is being opened</translation>
    </message>
    <message>
        <source>No working directory can be made in %1. The project&apos;s working files lie in %2, where other programs may remove them.</source>
        <translation>No working directory can be made in %1. The project&apos;s working files lie in %2, where other programs may remove them.</translation>
    </message>
    <message>
        <source>The coordinate systems of the project %1 cannot be read: %2</source>
        <translation>The coordinate systems of the project %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>their file is damaged. It is kept in the project</source>
        <translation>their file is damaged. It is kept in the project</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectArchive</name>
    <message>
        <source>the working files could not be read</source>
        <translation>the working files could not be read</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>there is no such file</translation>
    </message>
    <message>
        <source>it is no project file, or it is damaged</source>
        <translation>it is no project file, or it is damaged</translation>
    </message>
    <message>
        <source>there is not enough space for its content</source>
        <translation>there is not enough space for its content</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>it is damaged</translation>
    </message>
    <message>
        <source>its content could not be written: %1</source>
        <translation>its content could not be written: %1</translation>
    </message>
    <message>
        <source>the file could not be written: %1</source>
        <translation>the file could not be written: %1</translation>
    </message>
    <message>
        <source>you may not read it</source>
        <translation>you may not read it</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectFiles</name>
    <message>
        <source>it is an archive, but no project</source>
        <translation>it is an archive, but no project</translation>
    </message>
    <message>
        <source>it was saved by a newer version of the program</source>
        <translation>it was saved by a newer version of the program</translation>
    </message>
    <message>
        <source>its description of geometry or mesh is damaged</source>
        <translation>its description of geometry or mesh is damaged</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>it is damaged</translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectTree</name>
    <message>
        <source>Project</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>%1 triangles</source>
        <translation>%1 triangles</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>Volumes</translation>
    </message>
    <message>
        <source>%1 elements</source>
        <translation>%1 elements</translation>
    </message>
    <message>
        <source>Meshes</source>
        <translation>Meshes</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materials</translation>
    </message>
    <message>
        <source>used by %1</source>
        <translation>used by %1</translation>
    </message>
    <message>
        <source>Coordinate systems</source>
        <translation>Coordinate systems</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>current</source>
        <translation>current</translation>
    </message>
    <message>
        <source>Show only this</source>
        <translation>Show only this</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Show all</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Rename…</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>New name:</source>
        <translation>New name:</translation>
    </message>
    <message>
        <source>Sets</source>
        <translation>Sets</translation>
    </message>
    <message>
        <source>%1 members</source>
        <translation>%1 members</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>not read</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Hide</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
</context>
<context>
    <name>Workbench::PropertyEditor</name>
    <message>
        <source>other</source>
        <translation>other</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>unit X; source of the values; conditions</source>
        <translation>unit X; source of the values; conditions</translation>
    </message>
    <message>
        <source>set; in the default library: differs between directions</source>
        <translation>set; in the default library: differs between directions</translation>
    </message>
    <message>
        <source>not known: begin the remark with &apos;unit X&apos;</source>
        <translation>not known: begin the remark with &apos;unit X&apos;</translation>
    </message>
    <message>
        <source>The material &amp;has this property</source>
        <translation>The material &amp;has this property</translation>
    </message>
    <message>
        <source>&amp;Quantity</source>
        <translation>&amp;Quantity</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Kind</translation>
    </message>
    <message>
        <source>&amp;Label</source>
        <translation>&amp;Label</translation>
    </message>
    <message>
        <source>Co&amp;mponents</source>
        <translation>Co&amp;mponents</translation>
    </message>
    <message>
        <source>&amp;Remark</source>
        <translation>&amp;Remark</translation>
    </message>
    <message>
        <source>&amp;Flag</source>
        <translation>&amp;Flag</translation>
    </message>
    <message>
        <source>Component %1</source>
        <translation>Component %1</translation>
    </message>
</context>
<context>
    <name>Workbench::PropertyKind</name>
    <message>
        <source>relative permittivity</source>
        <translation>relative permittivity</translation>
    </message>
    <message>
        <source>relative permeability</source>
        <translation>relative permeability</translation>
    </message>
    <message>
        <source>electric conductivity</source>
        <translation>electric conductivity</translation>
    </message>
    <message>
        <source>thermal conductivity</source>
        <translation>thermal conductivity</translation>
    </message>
    <message>
        <source>mass density</source>
        <translation>mass density</translation>
    </message>
</context>
<context>
    <name>Workbench::PropertyTable</name>
    <message>
        <source>Properties</source>
        <translation>Properties</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Property</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>from (x, y, z)</source>
        <translation>from (x, y, z)</translation>
    </message>
    <message>
        <source>to (x, y, z)</source>
        <translation>to (x, y, z)</translation>
    </message>
    <message>
        <source>volume</source>
        <translation>volume</translation>
    </message>
    <message>
        <source>number</source>
        <translation>number</translation>
    </message>
    <message>
        <source>material</source>
        <translation>material</translation>
    </message>
    <message>
        <source>physical group</source>
        <translation>physical group</translation>
    </message>
    <message>
        <source>faces</source>
        <translation>faces</translation>
    </message>
    <message>
        <source>face</source>
        <translation>face</translation>
    </message>
    <message>
        <source>triangles</source>
        <translation>triangles</translation>
    </message>
    <message>
        <source>node</source>
        <translation>node</translation>
    </message>
    <message>
        <source>position (x, y, z)</source>
        <translation>position (x, y, z)</translation>
    </message>
    <message>
        <source>elements</source>
        <translation>elements</translation>
    </message>
    <message>
        <source>element</source>
        <translation>element</translation>
    </message>
    <message>
        <source>nodes</source>
        <translation>nodes</translation>
    </message>
    <message>
        <source>centre (x, y, z)</source>
        <translation>centre (x, y, z)</translation>
    </message>
    <message>
        <source>group</source>
        <translation>group</translation>
    </message>
    <message>
        <source>mesh</source>
        <translation>mesh</translation>
    </message>
    <message>
        <source>project</source>
        <translation>project</translation>
    </message>
    <message>
        <source>file</source>
        <translation>file</translation>
    </message>
    <message>
        <source>geometry</source>
        <translation>geometry</translation>
    </message>
    <message>
        <source>selected items</source>
        <translation>selected items</translation>
    </message>
</context>
<context>
    <name>Workbench::QualityDock</name>
    <message>
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Colour by face</source>
        <translation>Colour by face</translation>
    </message>
    <message>
        <source>By what the mesh is coloured</source>
        <translation>By what the mesh is coloured</translation>
    </message>
    <message>
        <source>Worst elements</source>
        <translation>Worst elements</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regions</translation>
    </message>
    <message>
        <source>No mesh</source>
        <translation>No mesh</translation>
    </message>
    <message>
        <source>%1 of %2 elements</source>
        <translation>%1 of %2 elements</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mean</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Not finite</source>
        <translation>Not finite</translation>
    </message>
    <message>
        <source>Inverted / flat</source>
        <translation>Inverted / flat</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metric</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Lists</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>Check: %1</source>
        <translation>Check: %1</translation>
    </message>
</context>
<context>
    <name>Workbench::RegionTable</name>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elements</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mean</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Not finite</source>
        <translation>Not finite</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>Inverted</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Flat</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regions</translation>
    </message>
</context>
<context>
    <name>Workbench::RemovalQuestion</name>
    <message>
        <source>No other system is relative to it.</source>
        <translation>No other system is relative to it.</translation>
    </message>
    <message>
        <source>These are relative to it and go with it: %1.</source>
        <translation>These are relative to it and go with it: %1.</translation>
    </message>
    <message>
        <source>Coordinate systems</source>
        <translation>Coordinate systems</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>Delete %1?</translation>
    </message>
</context>
<context>
    <name>Workbench::ScoreChart</name>
    <message>
        <source>Last scores</source>
        <translation>Last scores</translation>
    </message>
</context>
<context>
    <name>Workbench::ScoreHistory</name>
    <message>
        <source>The mesh has no score: it could not be copied to %1, where the predictor reads.</source>
        <translation>The mesh has no score: it could not be copied to %1, where the predictor reads.</translation>
    </message>
    <message>
        <source>The last score is not that of this mesh: it could not be copied to %1, where the predictor reads, or another program has written there.</source>
        <translation>The last score is not that of this mesh: it could not be copied to %1, where the predictor reads, or another program has written there.</translation>
    </message>
    <message>
        <source>The mesh has no score: the quality model %1 cannot be used: %2</source>
        <translation>The mesh has no score: the quality model %1 cannot be used: %2</translation>
    </message>
</context>
<context>
    <name>Workbench::ScoreText</name>
    <message>
        <source>The score means nothing, because the mean of a metric is no finite number.</source>
        <translation>The score means nothing, because the mean of a metric is no finite number.</translation>
    </message>
    <message>
        <source>There is no score: the model gives no number for this mesh.</source>
        <translation>There is no score: the model gives no number for this mesh.</translation>
    </message>
    <message>
        <source>A mesh is scored when it is opened.</source>
        <translation>A mesh is scored when it is opened.</translation>
    </message>
    <message>
        <source>It is practically the mesh that was scored last, so the history has no new entry.</source>
        <translation>It is practically the mesh that was scored last, so the history has no new entry.</translation>
    </message>
    <message>
        <source>Mean %1 %2 lies outside of the range that the model was trained on, %3 to %4.</source>
        <translation>Mean %1 %2 lies outside of the range that the model was trained on, %3 to %4.</translation>
    </message>
    <message>
        <source>Score %1 (0 worst, 1 best)</source>
        <translation>Score %1 (0 worst, 1 best)</translation>
    </message>
    <message>
        <source>Of the mesh that was read last, %1:</source>
        <translation>Of the mesh that was read last, %1:</translation>
    </message>
</context>
<context>
    <name>Workbench::SelectionUndo</name>
    <message>
        <source>selection</source>
        <translation>selection</translation>
    </message>
</context>
<context>
    <name>Workbench::TaskBar</name>
    <message>
        <source>Reading %1</source>
        <translation>Reading %1</translation>
    </message>
    <message>
        <source>Meshing %1</source>
        <translation>Meshing %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Saving %1</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Opening %1</translation>
    </message>
</context>
<context>
    <name>Workbench::TransferDialog</name>
    <message>
        <source>Please wait</source>
        <translation>Please wait</translation>
    </message>
</context>
<context>
    <name>Workbench::View3D</name>
    <message>
        <source>The picture cannot be saved as %1.</source>
        <translation>The picture cannot be saved as %1.</translation>
    </message>
</context>
<context>
    <name>Workbench::WorstList</name>
    <message>
        <source>Number:</source>
        <translation>Number:</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Selects the elements of the marked rows, or all of the list when none is marked</source>
        <translation>Selects the elements of the marked rows, or all of the list when none is marked</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>A double click or Enter looks at the element</source>
        <translation>A double click or Enter looks at the element</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Save...</translation>
    </message>
    <message>
        <source>Writes the list with all metrics as CSV, as &apos;meshquality report&apos; does</source>
        <translation>Writes the list with all metrics as CSV, as &apos;meshquality report&apos; does</translation>
    </message>
    <message>
        <source>Worst elements</source>
        <translation>Worst elements</translation>
    </message>
    <message>
        <source>The list could not be written to %1.</source>
        <translation>The list could not be written to %1.</translation>
    </message>
</context>
</TS>
