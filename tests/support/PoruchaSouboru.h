#pragma once
// A failing file system under the one whole-file writer (Soubory::zapis): each case makes one
// of its operations fail with an errno, as a full disk or a read-only mount would.
#include <QString>
#include <functional>

// Runs zapis once per case (ENOSPC and EROFS while writing, ENOSPC at the sync, EROFS and EIO at
// the rename) and expects the store's number for each (3799, 3051, 3799, 3051, 75), cil as it
// stood before (its old content, or still missing) and no temporary file beside it.
void ocekavejPoruchySouboru(const QString& cil, const std::function<void()>& zapis);
