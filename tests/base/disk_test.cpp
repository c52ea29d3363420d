#include "base/disk.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <cerrno>

#include "support/failing_disk.hpp"
#include "support/temporary_folder.hpp"

namespace korven::base {
namespace {

// Takes three bytes at a time.
class DiscoStretto : public test::DiscoGuasto {
 public:
    ssize_t scrivi(int file, std::string_view byte) const override {
        return DiscoGuasto::scrivi(file, byte.substr(0, 3));
    }
};

TEST(ScriviTutto, GoesOnWhereTheDiskTookOnlyAPart) {
    const test::CartellaProvvisoria cartella;
    const DiscoStretto disco;
    const int file = disco.apri(cartella / "f", O_WRONLY | O_CREAT, 0600);
    ASSERT_GE(file, 0);
    EXPECT_TRUE(scriviTutto(disco, file, "undici byte"));
    EXPECT_TRUE(disco.chiudi(file));
    EXPECT_EQ(test::contenuto(cartella / "f"), "undici byte");
}

TEST(ScriviTutto, TellsTheReasonOfTheDisk) {
    const test::CartellaProvvisoria cartella;
    const test::DiscoPieno disco(4);
    const int file = disco.apri(cartella / "f", O_WRONLY | O_CREAT, 0600);
    ASSERT_GE(file, 0);
    EXPECT_FALSE(scriviTutto(disco, file, "undici byte"));
    EXPECT_EQ(errno, ENOSPC);
    EXPECT_TRUE(disco.chiudi(file));
    EXPECT_EQ(test::contenuto(cartella / "f"), "undi");
}

TEST(DiscoDiSistema, TellsOfADeviceThatIsReallyFull) {
    const Disco& disco = discoDiSistema();
    const int file = disco.apri("/dev/full", O_WRONLY, 0);
    ASSERT_GE(file, 0);
    EXPECT_FALSE(scriviTutto(disco, file, "undici byte"));
    EXPECT_EQ(errno, ENOSPC);
    EXPECT_TRUE(disco.chiudi(file));
}

}  // namespace
}  // namespace korven::base
