/* A program in C that calls every function of the shared library once. Prints each error; exits with 0 if there is
 * none. */
#include "mava_tum_inspect.h"

#include <stdio.h>
#include <string.h>

static int failures;

static void expect(int holds, const char *what)
{
    if (!holds) {
        printf("not so: %s\n", what);
        ++failures;
    }
}

static const uint8_t input[] = {0x08, 0x07, 0x98, 0x06, 0x01, 0x15, 0x01};

static int32_t count_line(const mava_tum_inspect_line *line, void *context)
{
    char text[200];
    expect(mava_tum_inspect_format_line(line, input, text, sizeof text) < sizeof text, "a line fits 200 characters");
    ++*(int *)context;
    return 0;
}

static int32_t count_finding(const mava_tum_inspect_finding *finding, void *context)
{
    expect(finding->text[0] == '`', "a finding begins with its field");
    ++*(int *)context;
    return 0;
}

static void describe(void)
{
    mava_tum_inspect_message message;
    mava_tum_inspect_field field;
    expect(mava_tum_inspect_message_count() == 40, "there are 40 messages");
    expect(strcmp(mava_tum_inspect_message_name(0), "subscriber_v4") == 0, "the first is subscriber_v4");
    expect(mava_tum_inspect_adapter_count() == 19, "there are 19 adapters");
    expect(strcmp(mava_tum_inspect_adapter_name(0), "session_context") == 0, "the first is session_context");
    expect(mava_tum_inspect_describe("subscriber_v4", &message) == MAVA_TUM_OK, "subscriber_v4 is known");
    expect(message.field_count == 2, "it has two fields");
    expect(mava_tum_inspect_describe_field("subscriber_v4", 2, &field) == MAVA_TUM_OK, "it has a field 2");
    expect(field.address == MAVA_TUM_INSPECT_IPV4, "which is an address");
}

static void find_names(void)
{
    const char *name = "";
    expect(mava_tum_inspect_similar_messages("subscriber_v44", &name, 1) == 1, "a message is similar");
    expect(strcmp(name, "subscriber_v4") == 0, "it is subscriber_v4");
    expect(mava_tum_inspect_similar_adapters("sub_routes", &name, 1) == 1, "an adapter is similar");
    expect(strcmp(name, "sub_route") == 0, "it is sub_route");
}

static void explain(void)
{
    mava_tum_inspect_verdict verdict;
    uint64_t blocks = 1, bytes = 1;
    int lines = 0;
    expect(mava_tum_inspect_judge("subscriber_v4", input, sizeof input, &verdict) == MAVA_TUM_OK, "it is judged");
    expect(verdict.result == MAVA_TUM_TRUNCATED && verdict.offset == 6, "the address at byte 6 is cut");
    mava_tum_inspect_explain("subscriber_v4", input, sizeof input, count_line, &lines, &verdict);
    expect(lines == 8, "two lines a field, a note and a fault");
    mava_tum_inspect_memory("subscriber_v4", input, sizeof input, 0, &blocks, &bytes);
    expect(blocks == 0 && bytes == 0, "no memory is asked for");
}

static void check_and_guess(void)
{
    mava_tum_inspect_check_result result;
    mava_tum_inspect_candidate candidate;
    int findings = 0;
    mava_tum_inspect_check("session_delete", input, 5, 10, count_finding, &findings, &result);
    expect(findings == 1 && result.finding_count == 1, "the unknown field is found");
    expect(mava_tum_inspect_guess(input, 2, &candidate, 1) > 1, "many messages begin like that");
    expect(candidate.unknown_fields == 0, "the likeliest knows the field");
}

static const char *no_name(const mava_tum_inspect_value *value, void *context)
{
    (void)context;
    return value->kind == MAVA_TUM_INSPECT_TEXT ? "***" : NULL;
}

static int32_t count_difference(const mava_tum_inspect_difference *difference, void *context)
{
    expect(difference->first != NULL || difference->second != NULL, "a difference has a value");
    ++*(int *)context;
    return 0;
}

static void print_and_compare(void)
{
    static const uint8_t named[] = {0x2A, 0x01, 0x61};
    char line[200];
    uint64_t count = 0;
    int differences = 0;
    expect(mava_tum_inspect_print("session_data", named, sizeof named, MAVA_TUM_INSPECT_WORDS, no_name, NULL, line,
               sizeof line) == MAVA_TUM_OK,
        "it is printed");
    expect(strstr(line, "{field_5=\"***\"}") != NULL, "without the name");
    expect(mava_tum_inspect_compare(
               "session_data", named, sizeof named, input, 2, count_difference, &differences, &count) == MAVA_TUM_OK,
        "it is compared");
    expect(differences == 2 && count == 2, "each has a field that the other lacks");
}

int main(void)
{
    describe();
    find_names();
    explain();
    check_and_guess();
    print_and_compare();
    return failures == 0 ? 0 : 1;
}
