#pragma once
// The one program-wide record of the pupil using the program: the name and saved progress values
// (in the order they are written to a record file), the choices the topic menus pass to activity
// screens, and the bookkeeping of the current run.
#include "core/Value.h"

#include <array>
#include <string_view>

namespace nb {

// The saved values in file order. Each entry expands X(FieldName).
#define NB_RECORD_FIELDS(X)                                                                        \
    X(PupilName)                                                                                   \
    X(MakeTenBest)                                                                                 \
    X(MakeAnyBest)                                                                                 \
    X(AddBestNormal1)                                                                              \
    X(AddBestNormal2)                                                                              \
    X(AddBestNormal3)                                                                              \
    X(AddBestNormal4)                                                                              \
    X(MakeTenBestNeg)                                                                              \
    X(MakeAnyBestNeg)                                                                              \
    X(MakeTenBestDec)                                                                              \
    X(MakeAnyBestDec)                                                                              \
    X(MakeTenBestNegDec)                                                                           \
    X(MakeAnyBestNegDec)                                                                           \
    X(AddBestNeg1)                                                                                 \
    X(AddBestNeg2)                                                                                 \
    X(AddBestNeg3)                                                                                 \
    X(AddBestNeg4)                                                                                 \
    X(AddBestDec1)                                                                                 \
    X(AddBestDec2)                                                                                 \
    X(AddBestDec3)                                                                                 \
    X(AddBestDec4)                                                                                 \
    X(AddBestNegDec1)                                                                              \
    X(AddBestNegDec2)                                                                              \
    X(AddBestNegDec3)                                                                              \
    X(AddBestNegDec4)                                                                              \
    X(ColumnAddBest)                                                                               \
    X(MakeTenSubBest)                                                                              \
    X(MakeAnySubBest)                                                                              \
    X(SubBestNormal1)                                                                              \
    X(SubBestNormal2)                                                                              \
    X(SubBestNormal3)                                                                              \
    X(SubBestNormal4)                                                                              \
    X(ColumnSubBest)                                                                               \
    X(MakeTenSubBestNeg)                                                                           \
    X(MakeAnySubBestNeg)                                                                           \
    X(SubBestNeg1)                                                                                 \
    X(SubBestNeg2)                                                                                 \
    X(SubBestNeg3)                                                                                 \
    X(SubBestNeg4)                                                                                 \
    X(MakeTenSubBestDec)                                                                           \
    X(MakeAnySubBestDec)                                                                           \
    X(SubBestDec1)                                                                                 \
    X(SubBestDec2)                                                                                 \
    X(SubBestDec3)                                                                                 \
    X(SubBestDec4)                                                                                 \
    X(MakeTenSubBestNegDec)                                                                        \
    X(MakeAnySubBestNegDec)                                                                        \
    X(SubBestNegDec1)                                                                              \
    X(SubBestNegDec2)                                                                              \
    X(SubBestNegDec3)                                                                              \
    X(SubBestNegDec4)                                                                              \
    X(MulBest)                                                                                     \
    X(MakeTenTimesBestA)                                                                           \
    X(MentMulBest)                                                                                 \
    X(Mul21Best)                                                                                   \
    X(Mul31Best)                                                                                   \
    X(Mul22Best)                                                                                   \
    X(Mul32Best)                                                                                   \
    X(MakeTenTimesBestB)                                                                           \
    X(ExtraBestA)                                                                                  \
    X(MakeTenDivBest)                                                                              \
    X(DivBest1)                                                                                    \
    X(DivBest2)                                                                                    \
    X(DivRemBest)                                                                                  \
    X(DivDecBest)                                                                                  \
    X(DivFracBest)                                                                                 \
    X(MakeTenDivBest2)                                                                             \
    X(DivBest3)                                                                                    \
    X(DivBest4)                                                                                    \
    X(SearchBest1)                                                                                 \
    X(SearchBest2)                                                                                 \
    X(SearchBest3)                                                                                 \
    X(SearchBest4)                                                                                 \
    X(ExtraBestB)                                                                                  \
    X(DartsBest)                                                                                   \
    X(PerfectionBest)                                                                              \
    X(FactorBest)

struct PupilProgress
{
#define NB_DECLARE_FIELD(name) Value name;
    NB_RECORD_FIELDS(NB_DECLARE_FIELD)
#undef NB_DECLARE_FIELD

    // Menu choices passed to activity screens (not saved).
    Value AddLevel, AddNegatives, AddDecimals;
    Value SubLevel, SubNegatives, SubDecimals;
    Value DivLevel, DivNegatives;
    Value MulNegatives;
    Value SearchCaller;
    Value SnapOption, FourRowOptionA, FourRowOptionB;

    // Run bookkeeping (not saved).
    Value Unsaved;
    Value LoadedFromFile;
    Value LoadedFileName;
    Value RecordFolder; // the folder of the record loaded in this run; the file screens open there
    Value FileNumber;
    Value MessageText;
    Value MessageReply;

    static constexpr std::size_t kRecordFieldCount = 77;

    struct RecordField
    {
        std::string_view name;
        Value PupilProgress::*member;
    };
    // The saved fields in the order a record file holds them.
    static const std::array<RecordField, kRecordFieldCount> &recordFields();
};

} // namespace nb
