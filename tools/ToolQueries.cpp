#include "tools/ToolQueries.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <vector>

#include "core/Muuttujat.h"
#include "core/Numbers.h"
#include "core/Projektio.h"
#include "core/Text.h"
#include "mainwindow/FolderList.h"
#include "mainwindow/WindowList.h"
#include "tools/ToolLine.h"
#include "tools/ToolRun.h"
#include "tools/ToolWindow.h"

namespace tessarin {
namespace {

// One query at work; word 0 is the "@".
struct Question {
    ToolRun& run;
    const std::vector<std::string>& words;

    const std::string& Word(std::size_t n) const {
        return n < words.size() ? words[n] : throw ToolFault{kWordMissing};
    }
    int16_t Id() const { return SlotOf(Word(2), MaxWindows); }
    std::shared_ptr<AnalysisWindow> Window() const { return ToolWindow(Id()); }
    const Tiedosto& WindowFile() const {
        Window();
        return File(Ikkunat(Id()).FileIndex);
    }
    static const Tiedosto& File(int slot) {
        if (!Tiedostot.Holds(slot)) {
            throw ToolFault{"The window has no file"};
        }
        return Tiedostot(slot).Valid ? Tiedostot(slot)
                                     : throw ToolFault{"There is no file " + std::to_string(slot)};
    }
    const Tiedosto& File() const { return File(SlotOf(Word(2), MaxFiles)); }
    const Populaatio& Population() const { return Populaatiot(SlotOf(Word(2), kPopulationSlots)); }
    const Kanava& Channel() const {
        const Tiedosto& file = File();
        return file.Channels(SlotOf(Word(4), file.ChannelCount));
    }
};

struct Query {
    ToolPattern form;
    ToolValue (*answer)(const Question& q);
};

ToolValue Number(double number) {
    return ToolValue::Of(number);
}

ToolValue Text(const std::string& text) {
    return ToolValue(text);
}

ToolValue Yes(bool yes) {
    return ToolValue::Of(yes);
}

// A statistic that the window does not know reads as 0.
double Statistic(const Question& q, const std::string& area, const std::string& kind) {
    return Must(q.Window()->Stats()).AnnaStatistiikka(area, kind).value_or(0);
}

ToolValue Quadrant(const Question& q) {
    constexpr double kHundredths = 100;
    return Number(Int(kHundredths * Statistic(q, q.Word(4), q.Word(5))) / kHundredths);
}

ToolValue QuadrantPlace(const Question& q, std::string_view axis) {
    return Number(Int(NumberOf(Must(q.Window()->Quadrant()).AnnaKvadrantinKoordinaatit(axis))));
}

bool IsUsed(const Question& q) {
    return Ikkunat(q.Id()).Used;
}

ToolValue HasQuadrant(const Question& q) {
    const QuadrantOwner* owner = IsUsed(q) ? q.Window()->Quadrant() : nullptr;
    return Yes(owner != nullptr && owner->OnkoKvadranttiKaytossa());
}

ToolValue HasStatistics(const Question& q) {
    const StatisticsOwner* owner = IsUsed(q) ? q.Window()->Stats() : nullptr;
    return Yes(owner != nullptr && owner->KertooAuki() && owner->OnkoStatistiikkaKaytossa());
}

ToolValue HighestBin(const Question& q, std::string_view mode) {
    return Number(
        Must(q.Window()->Bins()).AnnaHistonKorkeinKohta(mode, SlotOf(q.Word(6), MaxPopulations)));
}

ToolValue BinHeight(const Question& q) {
    int32_t place = ToInt32(Rounded(NumberOf(q.Word(5))));
    return Number(Must(q.Window()->Bins()).AnnaHistonKorkeus(place));
}

ToolValue Table(const Question& q, std::string_view format) {
    return Text(Must(q.Window()->StatsTable()).AnnaKokoStatistiikka(format));
}

ToolValue Corner(const Question& q, bool y) {
    const Populaatio& row = q.Population();
    const auto corner = static_cast<std::size_t>(SlotOf(q.Word(4), kMaxCorners));
    return Number(
        Int(y ? kGrid - static_cast<double>(row.Y[corner]) : static_cast<double>(row.X[corner])));
}

ToolValue Cell(const Question& q) {
    const Tiedosto& file = q.File();
    const int32_t event = EventOf(q.Word(4), file.EventCount);
    const int16_t channel = SlotOf(q.Word(5), file.ChannelCount);
    return ToolValue::Of(static_cast<float>(file.Data(event, channel)));
}

ToolValue SecondsSinceMidnight(const Question& /*q*/) {
    const auto now = std::chrono::system_clock::now();
    const std::time_t whole = std::chrono::system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&whole, &local);
    const auto rest = now - std::chrono::system_clock::from_time_t(whole);
    const double seconds = local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec +
                           std::chrono::duration<double>(rest).count();
    return ToolValue::Of(static_cast<float>(seconds));
}

const std::vector<Query>& WindowQueries() {
    static const std::vector<Query> queries = {
        {ToolPattern("@.w|window.N.filename"),
         [](const Question& q) { return Text(q.WindowFile().FileName); }},
        {ToolPattern("@.w|window.N.fileid"),
         [](const Question& q) {
             q.Window();
             return Number(Ikkunat(q.Id()).FileIndex);
         }},
        {ToolPattern("@.w|window.N.sampleid"),
         [](const Question& q) { return Text(q.WindowFile().Otsikko.SampleId); }},
        {ToolPattern("@.w|window.N.btime"),
         [](const Question& q) { return Text(q.WindowFile().Otsikko.BeginTime); }},
        {ToolPattern("@.w|window.N.etime"),
         [](const Question& q) { return Text(q.WindowFile().Otsikko.EndTime); }},
        {ToolPattern("@.w|window.N.folder"),
         [](const Question& q) { return Text(q.WindowFile().Folder); }},
        {ToolPattern("@.w|window.N.axis.x"),
         [](const Question& q) { return Text(Must(q.Window()->Channels()).AnnaKanava("x")); }},
        {ToolPattern("@.w|window.N.axis.y"),
         [](const Question& q) { return Text(Must(q.Window()->Channels()).AnnaKanava("y")); }},
        {ToolPattern("@.w|window.N.population.P.S"),
         [](const Question& q) { return Number(Statistic(q, q.Word(4), q.Word(5))); }},
        {ToolPattern("@.w|window.N.quadrant.position.x"),
         [](const Question& q) { return QuadrantPlace(q, "x"); }},
        {ToolPattern("@.w|window.N.quadrant.position.y"),
         [](const Question& q) { return QuadrantPlace(q, "y"); }},
        {ToolPattern("@.w|window.N.quadrant.exists"), HasQuadrant},
        {ToolPattern("@.w|window.N.quadrant.ul|ur|ll|lr.S"), Quadrant},
        {ToolPattern("@.w|window.N.histogram.highest.position.P"),
         [](const Question& q) { return HighestBin(q, "paikka"); }},
        {ToolPattern("@.w|window.N.histogram.highest.height.P"),
         [](const Question& q) { return HighestBin(q, "suhtkorkeus"); }},
        {ToolPattern("@.w|window.N.histogram.height.X"), BinHeight},
        {ToolPattern("@.w|window.N.modeller.height.X"),
         [](const Question& q) {
             return Number(Must(q.Window()->Curves()).AnnaSummanKorkeus(NumberOf(q.Word(5))));
         }},
        {ToolPattern("@.w|window.N.exists"), [](const Question& q) { return Yes(IsUsed(q)); }},
        {ToolPattern("@.w|window.N.statistics.exists"), HasStatistics},
        {ToolPattern("@.w|window.N.statistics.contents.singleline.header"),
         [](const Question& q) { return Table(q, "1-rivinen-otsikko"); }},
        {ToolPattern("@.w|window.N.statistics.contents.singleline.stats"),
         [](const Question& q) { return Table(q, "1-rivinen-tieto"); }},
        {ToolPattern("@.w|window.N.statistics.contents.multiline"),
         [](const Question& q) { return Table(q, "monirivinen"); }},
        {ToolPattern("@.w|window.N.type"),
         [](const Question& q) { return Text(Ikkunat(q.Id()).Type); }},
    };
    return queries;
}

const std::vector<Query>& TableQueries() {
    static const std::vector<Query> queries = {
        {ToolPattern("@.p|population.N.axis.x"),
         [](const Question& q) { return Number(q.Population().AxisX); }},
        {ToolPattern("@.p|population.N.axis.y"),
         [](const Question& q) { return Number(q.Population().AxisY); }},
        {ToolPattern("@.p|population.N.position.K.x"),
         [](const Question& q) { return Corner(q, false); }},
        {ToolPattern("@.p|population.N.position.K.y"),
         [](const Question& q) { return Corner(q, true); }},
        {ToolPattern("@.p|population.N.name"),
         [](const Question& q) { return Text(q.Population().Name); }},
        {ToolPattern("@.p|population.N.exists"),
         [](const Question& q) { return Yes(q.Population().Defined); }},
        {ToolPattern("@.p|population.N.type"),
         [](const Question& q) { return Text(q.Population().Type); }},
        {ToolPattern("@.f|file.N.exists"),
         [](const Question& q) { return Yes(Tiedostot(SlotOf(q.Word(2), MaxFiles)).Valid); }},
        {ToolPattern("@.f|file.N.name"), [](const Question& q) { return Text(q.File().FileName); }},
        {ToolPattern("@.f|file.N.parameter.K.name"),
         [](const Question& q) { return Text(q.Channel().Name); }},
        {ToolPattern("@.f|file.N.parameter.K.max"),
         [](const Question& q) { return Number(q.Channel().Range); }},
        {ToolPattern("@.f|file.N.parameter.K.log"),
         [](const Question& q) { return Yes(q.Channel().IsLog); }},
        {ToolPattern("@.f|file.N.parameters"),
         [](const Question& q) { return Number(q.File().ChannelCount); }},
        {ToolPattern("@.f|file.N.cells"),
         [](const Question& q) { return Number(q.File().EventCount); }},
        {ToolPattern("@.f|file.N.cell.I.J.value"), Cell},
        {ToolPattern("@.foldernow"), [](const Question& q) { return Text(q.run.NykyinenKansio); }},
        {ToolPattern("@.filesinfolder"),
         [](const Question& q) {
             return Number(static_cast<double>(TeeLista(q.run.NykyinenKansio).size()));
         }},
        {ToolPattern("@.fastdraw.limit"),
         [](const Question& /*q*/) { return Number(FastDrawLimit); }},
        {ToolPattern("@.time"), SecondsSinceMidnight},
    };
    return queries;
}

std::vector<std::string> WordsOf(const std::string& query) {
    std::vector<std::string> words;
    for (const std::string_view word : Split(query, '.')) {
        words.emplace_back(word);
    }
    words[0] = "@";  // which is all that the first word carries
    return words;
}

// Those among which a query is; none for one that is only a word.
std::span<const Query> QueriesFor(const std::vector<std::string>& words) {
    if (words.size() == 1) {
        return {};
    }
    return words[1] == "w" || words[1] == "window" ? WindowQueries() : TableQueries();
}

}  // namespace

bool TunteeKysymyksen(const std::string& query) {
    const std::vector<std::string> words = WordsOf(query);
    const auto mayFit = [&words](const Query& known) { return known.form.MayFit(words); };
    return std::ranges::any_of(WindowQueries(), mayFit) ||
           std::ranges::any_of(TableQueries(), mayFit);
}

std::optional<ToolValue> Kysy(ToolRun& run, const std::string& query) {
    const std::vector<std::string> words = WordsOf(query);
    const Query* found = EtsiMuoto(QueriesFor(words), words);
    return found == nullptr ? std::nullopt : std::optional(found->answer({run, words}));
}

}  // namespace tessarin
