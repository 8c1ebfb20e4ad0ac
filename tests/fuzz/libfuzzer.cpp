// libFuzzer's entry: the target named by TRUHLAR_FUZZ_CIL (see CileFuzz.h), under clang with
// -fsanitize=fuzzer,address,undefined. make fuzz builds and runs one of these per target.
#include "CileFuzz.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

// Puts the target's seeds into an empty corpus folder (the first folder argument), so a run
// starts from inputs that reach deep.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    const CileFuzz::Cil* cil = CileFuzz::najdi(qgetenv("TRUHLAR_FUZZ_CIL"));
    for (int i = 1; cil && i < *argc; ++i) {
        if ((*argv)[i][0] == '-')
            continue;
        QDir korpus(QString::fromLocal8Bit((*argv)[i]));
        if (korpus.exists() && korpus.isEmpty()) {
            static int argc0 = 1;
            static char nazev[] = "truhlar-fuzz";
            static char* argv0[] = {nazev, nullptr};
            static QGuiApplication app(argc0, argv0);
            int n = 0;
            for (const QByteArray& s : cil->semena()) {
                QFile f(korpus.filePath(QStringLiteral("semeno-%1").arg(++n)));
                if (f.open(QIODevice::WriteOnly))
                    f.write(s);
            }
        }
        break;
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static int argc = 1;
    static char nazev[] = "truhlar-fuzz";
    static char* argv[] = {nazev, nullptr};
    static QGuiApplication* app = QGuiApplication::instance() ? nullptr : new QGuiApplication(argc, argv);
    (void)app;
    static const CileFuzz::Cil* cil = [] {
        const CileFuzz::Cil* c = CileFuzz::najdi(qgetenv("TRUHLAR_FUZZ_CIL"));
        if (!c) {
            std::fprintf(stderr, "TRUHLAR_FUZZ_CIL names no target\n");
            std::abort();
        }
        return c;
    }();
    cil->spust(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    return 0;
}
