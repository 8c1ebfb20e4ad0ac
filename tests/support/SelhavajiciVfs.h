#pragma once
// A failing file system for tests: while it lives it is SQLite's default VFS, passing every
// call to the real one, except that writes to files whose name contains a given part fail
// after a given number of bytes, as a full disk (SQLITE_FULL) or a read-only one (errno EROFS).
// Open the store after making it: connections keep the VFS they were opened with.
#include <QString>

class SelhavajiciVfs {
public:
    enum class Porucha { DiskPlny, JenProCteni };

    SelhavajiciVfs();
    ~SelhavajiciVfs();
    SelhavajiciVfs(const SelhavajiciVfs&) = delete;
    SelhavajiciVfs& operator=(const SelhavajiciVfs&) = delete;

    void selhej(const QString& castJmena, Porucha porucha, qint64 poBajtech = 0);
    void oprav(); // writes pass again
};
