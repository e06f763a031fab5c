/*
 * A C program on the installed shared library: counts the keywords of a deck
 * through the flat entry and prints the count.
 */
#include <fedeck/binding/inp_CAPI.h>
#include <stdio.h>
#include <string.h>

static int keywords = -1;

static void countKeywords(char const* path, int count) {
    if (strcmp(path, ".keywords") == 0) keywords = count;
}

int main(int argc, char** argv) {
    if (argc != 2) {
        fprintf(stderr, "usage: capi_from_c DECK\n");
        return 2;
    }
    inp_CAPI_Parse(argv[1], NULL, true, 0, true, false, NULL, NULL, countKeywords, NULL);
    printf("%d keywords\n", keywords);
    return keywords > 0 ? 0 : 1;
}
