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
</TS>
