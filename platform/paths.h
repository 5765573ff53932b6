#pragma once

#include "platform/types.h"

namespace tamber {

/// Paths in memory have the platform's own form; "\" is a separator in files only.
inline constexpr char16_t PathSeparator =
#ifdef _WIN32
    u'\\';
#else
    u'/';
#endif

bool FileExists(StringView path);
bool FolderExists(StringView path);
/// Both paths lead to one existing file.
bool SameFile(StringView a, StringView b);

/// Text before the last separator, without it unless it is the root; empty when there is none.
String GetFileFolder(StringView path);
/// Text behind the last separator.
String GetFileName(StringView path);
/// File name up to its last ".".
String GetFileBase(StringView path);
/// Text behind the last "." of the file name, empty when there is none.
String GetFileExt(StringView path);
/// Joins a folder and a name; an empty folder gives the name.
String JoinPath(StringView folder, StringView name);

/// Creates each missing level of a folder path. False when one cannot be made.
bool MakeFolders(StringView path);
/// Path of `path` as seen from the folder `base`, its ".." climbing from where links lead; `path`
/// as it stands when there is no relative one.
String MakeRelativePath(StringView base, StringView path);
/// Resolves "." and ".." segments, only when the path holds any; letter case stays. Behind a link
/// ".." means the folder above the one the link leads to.
String NormalizePath(StringView path);
/// `path` made absolute against the working folder, its "." and ".." resolved. One that ends in a
/// separator, which no file does, still does.
String AbsolutePath(StringView path);
/// Folder of a file; of a link to a file, that of the file.
String FolderOfFile(StringView path);

/// A path as files hold it ("\" as separator), from the platform's form, and back. A drive path
/// ("c:\...") stays as it stands on platforms without drives.
String PathToCell(StringView path);
String PathFromCell(StringView cell);

/// The program's folder, base of its settings and data files.
String ProgramFolder();
void ProgramFolder(StringView folder);
/// The user's own folder for what the program's folder cannot take; empty when the environment
/// names none. It need not exist.
String UserFolder();
/// Puts the program's folder in place of "$(TAMBERDIR)"; the result ends in no separator.
String ReplaceAppDirToken(StringView path);

}  // namespace tamber
