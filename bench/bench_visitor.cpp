// The cost of the visitor framework itself: a stage that does nothing, walked
// over a million keywords. Every stage of the pipeline pays this once per
// keyword, so it bounds how cheap a stage can be.

#include <benchmark/benchmark.h>

#include <vector>

#include "pipeline/inp_Visitor.h"

namespace {

class NothingVisitor : public inp_Visitor {
  public:
    void DefaultAction(inp_Keyword&) override {}
};

// Every key that has a handler, so the walk spreads over the whole dispatch.
std::vector<inp_KeywordEnm> handledKeys() {
    std::vector<inp_KeywordEnm> keys;
#define HANDLED_KEY(camel, name, number)                                                     \
    if (number != inp_kw_UndefinedKeyword && number != inp_kw_Eof && number != inp_kw_Model) \
        keys.push_back(inp_kw_##camel);
    INP_KEYWORDS(HANDLED_KEY)
#undef HANDLED_KEY
    return keys;
}

// *PART, *ASSEMBLY, *INSTANCE and *STEP keywords would need names; they are
// left out so that the walk measures dispatch, not parameter lookups.
bool needsName(inp_KeywordEnm key) {
    return key == inp_kw_Assembly || key == inp_kw_Step || key == inp_kw_Part ||
           key == inp_kw_Instance;
}

cow_List<inp_Keyword> flatDeck(int count) {
    std::vector<inp_KeywordEnm> keys = handledKeys();
    cow_List<inp_Keyword> keywords;
    keywords.Reserve(count);
    for (size_t i = 0; keywords.Length() < count; ++i) {
        inp_KeywordEnm key = keys[i % keys.size()];
        if (!needsName(key)) keywords.Append(inp_Keyword(key));
    }
    return keywords;
}

// A tree as the organizer leaves it: one keyword in ten holds nine
// suboptions, so a million keywords in all.
cow_List<inp_Keyword> treeDeck(int count) {
    cow_List<inp_Keyword> const leaves = flatDeck(count);
    cow_List<inp_Keyword> keywords;
    for (int i = 0; i + 10 <= count; i += 10) {
        inp_Keyword parent = leaves[i];
        for (int j = 1; j < 10; ++j) parent.GetSuboptions().Append(leaves[i + j]);
        keywords.Append(parent);
    }
    return keywords;
}

constexpr int kKeywords = 1000000;

void WalkFlatDeck(benchmark::State& state) {
    cow_List<inp_Keyword> keywords = flatDeck(kKeywords);
    for (auto _ : state) {
        NothingVisitor visitor;
        visitor.VisitList(keywords);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * kKeywords);
}
BENCHMARK(WalkFlatDeck)->Unit(benchmark::kMillisecond);

void WalkTreeDeck(benchmark::State& state) {
    cow_List<inp_Keyword> keywords = treeDeck(kKeywords);
    for (auto _ : state) {
        NothingVisitor visitor;
        visitor.VisitList(keywords);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * kKeywords);
}
BENCHMARK(WalkTreeDeck)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
