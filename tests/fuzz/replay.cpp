// SPDX-FileCopyrightText: 2026 Vantrel
// SPDX-License-Identifier: MIT

// Takes the place of libFuzzer where a fuzz target is built as a test: each file in the given
// folders is one input.

#include "require.h"

#include <QDirIterator>
#include <QFile>

#include <cstddef>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

void replay(const QString &fileName)
{
    QFile file(fileName);
    require(file.open(QIODevice::ReadOnly), "an input can be read", fileName);
    const QByteArray input = file.readAll();
    std::printf("%s\n", qPrintable(fileName));
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                           std::size_t(input.size()));
}

} // namespace

int main(int argc, char **argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator inputs(QString::fromLocal8Bit(argv[i]), QDir::Files);
        for (; inputs.hasNext(); ++count)
            replay(inputs.next());
    }
    require(count > 0, "there are inputs");
    return 0;
}
