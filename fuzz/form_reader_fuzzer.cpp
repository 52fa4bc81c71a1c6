// The form-file reader as a hostile form file hands text to it. A refused file is fine; what it
// reads, the writer writes, and the writer's file reads back to the same form.
#include "fuzz/fuzzed_values.h"
#include "host/form/form_literal.h"
#include "host/form/form_reader.h"
#include "host/form/form_syntax_error.h"
#include "host/form/form_writer.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    using namespace tolva;
    std::string_view text(reinterpret_cast<const char*>(bytes), size);
    FormObject form;
    try {
        form = FormReader::Read(text);
    } catch (const FormSyntaxError&) {
        return 0;
    }
    std::string written;
    try {
        written = FormWriter::Write(form);
    } catch (const FormLiteralError&) {
        return 0; // a value the reader takes but no form file spells the same way (a bare empty text)
    }
    FormObject again;
    try {
        again = FormReader::Read(written);
    } catch (const FormSyntaxError&) {
        fuzz::Fail("the reader refused what the writer wrote");
    }
    if (FormWriter::Write(again) != written)
        fuzz::Fail("a form written and read again writes otherwise");
    return 0;
}
