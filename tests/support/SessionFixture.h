// The base of tests that touch the session's tables or read files.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/FCSReader.h"
#include "core/Muuttujat.h"
#include "core/PopulationEvaluation.h"
#include "tests/support/FcsBuilder.h"
#include "tests/support/TemporaryFolder.h"

namespace tessarin {

/// Each test begins with the session as it is at program start.
class SessionTest : public testing::Test {
  protected:
    SessionTest() {
        PalautaAlkutila();
        PoistaArvioijat();
    }

    Tiedosto Read(const FcsBuilder& built) const { return ReadBytes(built.Bytes()); }
    Tiedosto ReadBytes(const std::string& bytes) const {
        return LueFCS(folder.Write("tube.fcs", bytes));
    }

    TemporaryFolder folder;
};

/// What a refused file must look like.
inline void ExpectRefused(const Tiedosto& file) {
    EXPECT_FALSE(file.Valid);
    EXPECT_NE(file.Refusal, "");
    EXPECT_EQ(file.Fingerprint, 0);
    EXPECT_EQ(file.Path() + file.Otsikko.Version + file.Otsikko.Text + file.Oddities, "");
    EXPECT_EQ(file.EventCount + file.ChannelCount + file.Channels.size(), 0);
    EXPECT_EQ(file.Data.Events() + file.RawData.Events() + file.Membership.Events(), 0);
    EXPECT_EQ(file.Compensation.Columns(), 0);
}

}  // namespace tessarin
