<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
        <source>a mesh is being read; wait, or cancel it</source>
        <translation>a mesh is being read; wait, or cancel it</translation>
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
</context>
<context>
    <name>Workbench::ProjectArchive</name>
    <message>
        <source>the working files could not be read</source>
        <translation>the working files could not be read</translation>
    </message>
    <message>
        <source>the file could not be written</source>
        <translation>the file could not be written</translation>
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
</context>
<context>
    <name>Workbench::View3D</name>
    <message>
        <source>The picture cannot be saved as %1.</source>
        <translation>The picture cannot be saved as %1.</translation>
    </message>
</context>
</TS>
