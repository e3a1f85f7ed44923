#include "core/PupilProgress.h"

namespace nb {

const std::array<PupilProgress::RecordField, PupilProgress::kRecordFieldCount> &
PupilProgress::recordFields()
{
#define NB_FIELD_ENTRY(name) RecordField{#name, &PupilProgress::name},
    static const std::array<RecordField, kRecordFieldCount> fields{
        {NB_RECORD_FIELDS(NB_FIELD_ENTRY)}};
#undef NB_FIELD_ENTRY
    return fields;
}

} // namespace nb
