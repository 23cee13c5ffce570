// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <QTest>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::size_t blockSize = 64;
// The C library keeps its own notes at the beginning of a free block.
constexpr std::size_t notes = 2 * sizeof(void *);

/**
 * How many bytes at the end of a block, which need not be allocated any more, are as @p expected.
 */
int countOf(std::uintptr_t block, unsigned char expected)
{
    int count = 0;
    for (std::size_t i = notes; i < blockSize; ++i) {
        count += *reinterpret_cast<const volatile unsigned char *>(block + i) == expected ? 1 : 0;
    }
    return count;
}

} // namespace

/** Whether memory is overwritten where scripts/test --perturb asks for it; skipped elsewhere. */
class tst_PerturbedMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void newBlockIsFilled();
    void freedBlockIsOverwritten();

private:
    unsigned char pattern = 0;
};

void tst_PerturbedMemory::initTestCase()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("the sanitizer has an allocator of its own", );
#endif
    pattern = static_cast<unsigned char>(qEnvironmentVariableIntValue("MALLOC_PERTURB_"));
    if (pattern == 0) {
        QSKIP("nobody asks for overwritten memory", );
    }
}

void tst_PerturbedMemory::newBlockIsFilled()
{
    void *block = std::malloc(blockSize);
    const int filled = countOf(reinterpret_cast<std::uintptr_t>(block), pattern ^ 0xFF);
    std::free(block);
    QCOMPARE(filled, int(blockSize - notes));
}

void tst_PerturbedMemory::freedBlockIsOverwritten()
{
    void *block = std::malloc(blockSize);
    std::fill_n(static_cast<unsigned char *>(block), blockSize, static_cast<unsigned char>(1));
    // The address as a number, since the compiler must not know what is done here on purpose.
    const auto address = reinterpret_cast<std::uintptr_t>(block);
    std::free(block);
    const int overwritten = countOf(address, pattern);
    QCOMPARE(overwritten, int(blockSize - notes));
}

QTEST_APPLESS_MAIN(tst_PerturbedMemory)
#include "tst_perturbedmemory.moc"
