/* Asks how large a message will be, gets exactly that much memory, and encodes into it.
 * Prints the size asked for and the bytes that were written: the same number. */
#include "mava_tum/presence_bits.h"
#include "mava_tum/reconciliation.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* Three sessions whose state we ask for. A field goes out when its bit in the presence mask is set. */
static void fill(mava_tum_rec_sess_req *request, mava_tum_rec_session_state *states, uint32_t count)
{
    memset(request, 0, sizeof *request); /* also the bits of all fields that are not set here */
    request->field_1 = 7;
    request->field_3 = states;
    request->field_3_count = count;
    request->presence_mask = MAVA_TUM_REC_SESS_REQ_HAS_FIELD_1 | MAVA_TUM_REC_SESS_REQ_HAS_FIELD_3;
    for (uint32_t i = 0; i < count; ++i)
        states[i] = (mava_tum_rec_session_state){.field_1 = 100 + i,
            .field_2 = 1000 + i,
            .presence_mask = MAVA_TUM_REC_SESSION_STATE_HAS_FIELD_1 | MAVA_TUM_REC_SESSION_STATE_HAS_FIELD_2};
}

int main(void)
{
    mava_tum_rec_session_state states[3];
    mava_tum_rec_sess_req request;
    fill(&request, states, 3);

    /* Without a buffer nothing is written, only counted. */
    const uint64_t size = mava_tum_rec_sess_req_encode_ext(&request, NULL, 0, NULL, NULL);
    printf("%u sessions need %llu bytes\n", (unsigned)request.field_3_count, (unsigned long long)size);

    uint8_t *wire = (size_t)size == size ? malloc((size_t)size) : NULL; /* size_t may have 32 bits */
    if (wire == NULL) {
        fprintf(stderr, "size_then_encode: no memory for %llu bytes\n", (unsigned long long)size);
        return 1;
    }
    const uint64_t written = mava_tum_rec_sess_req_encode_ext(&request, wire, size, NULL, NULL);
    if (written != size) { /* only if somebody changed the record in between */
        fprintf(stderr, "size_then_encode: the message has %llu bytes now\n", (unsigned long long)written);
        free(wire);
        return 1;
    }
    printf("%llu bytes written:", (unsigned long long)written);
    for (uint64_t i = 0; i < written; ++i)
        printf(" %02X", wire[i]);
    printf("\n");
    free(wire);
    return 0;
}
