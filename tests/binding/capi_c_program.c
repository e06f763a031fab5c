/*
 * A C caller of libfedeck.so: the headers must compile as C, the records must
 * have their published layout, a small deck must come through the callbacks
 * with the values a C program reads from the plain fields, and its model
 * through the model entry. Exits 0 when every check holds.
 */
#include "binding/inp_CAPI.h"
#include "binding/inp_CAPI_Model.h"

#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

_Static_assert(sizeof(inp_CAPI_Item) == 32, "inp_CAPI_Item is 32 bytes");
_Static_assert(offsetof(inp_CAPI_Item, itemType) == 0, "itemType at 0");
_Static_assert(offsetof(inp_CAPI_Item, ival) == 4, "ival at 4");
_Static_assert(offsetof(inp_CAPI_Item, bval) == 8, "bval at 8");
_Static_assert(offsetof(inp_CAPI_Item, dval) == 16, "dval at 16");
_Static_assert(offsetof(inp_CAPI_Item, sval) == 24, "sval at 24");
_Static_assert(sizeof(inp_CAPI_paramKeyValue) == 40, "inp_CAPI_paramKeyValue is 40 bytes");
_Static_assert(offsetof(inp_CAPI_paramKeyValue, key) == 0, "key at 0");
_Static_assert(offsetof(inp_CAPI_paramKeyValue, value) == 8, "value at 8");

static int failures = 0;
static int keywordCount = -1;
static int nodeRows = 0;
static double secondNodeX = 0.0;
static char materialName[32] = "";
static char densityText[32] = "";
static char plasticComment[32] = "";

static void check(int condition, char const* what) {
    if (condition) return;
    fprintf(stderr, "capi_c_program: failed: %s\n", what);
    ++failures;
}

static void onStrings(char const* path, char const* objType, int count, char** strings) {
    check(strings == NULL || strings[count] == NULL, "string arrays end in a null pointer");
    if (strcmp(path, ".keywords[0].name") == 0) {
        check(strcmp(objType, "str") == 0 && count == 1, "a name is one str");
        check(strcmp(strings[0], "material") == 0, "the first keyword is *MATERIAL");
    }
    if (strcmp(path, ".keywords[0].suboptions[1].comments") == 0 && count == 1)
        snprintf(plasticComment, sizeof plasticComment, "%s", strings[0]);
}

static void onParameters(char const* path, int count, inp_CAPI_paramKeyValue* params) {
    if (strcmp(path, ".keywords[0].parameter") != 0) return;
    check(count == 1 && strcmp(params[0].key, "name") == 0, "*MATERIAL has one parameter, name");
    check(params[0].value.itemType == inp_CAPI_STRING, "the name is a string");
    snprintf(materialName, sizeof materialName, "%s", params[0].value.sval);
}

static void onList(char const* path, int count) {
    if (strcmp(path, ".keywords") == 0) keywordCount = count;
}

static void onData(char const* path, char const* typeName, int rows, int cols, void* array) {
    if (strcmp(path, ".keywords[0].suboptions[0].data") == 0) {
        inp_CAPI_Item const* items = (inp_CAPI_Item const*)array;
        check(strcmp(typeName, "inp_IsItem") == 0 && rows == 1 && cols == 2,
              "mixed density data are items");
        if (rows == 1 && cols == 2)
            snprintf(densityText, sizeof densityText, "%s|%s", inp_CAPI_Item_AsCharPtr(&items[0]),
                     items[1].sval);
    }
    if (strcmp(path, ".keywords[1].data") == 0) {
        check(strcmp(typeName, "inp_IsDoubleCZI") == 0 && cols == 7,
              "a node table is inp_IsDoubleCZI, 7 wide");
        nodeRows = rows;
        if (rows == 2) secondNodeX = ((double const*)array)[7 + 1];
    }
}

static int writeDeck(char const* path) {
    FILE* deck = fopen(path, "w");
    if (!deck) return 0;
    fputs(
        "*MATERIAL, NAME=Steel\n*DENSITY\n7800., Hot\n** plastic\n*PLASTIC\n250., 0.\n"
        "*NODE\n1, 0., 0., 0.\n2, 2.5, 0., 0.\n",
        deck);
    return fclose(deck) == 0;
}

/* The two nodes of the deck, in the instance of its generated part. */
static void checkModel(char const* path) {
    inp_CAPI_Model* model = inp_CAPI_Model_New();
    check(inp_CAPI_Model_Read(model, path, NULL, NULL, NULL) == inp_CAPI_MODEL_CLEAN,
          "the model is read");
    check(inp_CAPI_Model_LevelCount(model, inp_CAPI_INSTANCE) == 1, "one generated instance");
    int64_t const count = inp_CAPI_Model_NodeCount(model, inp_CAPI_INSTANCE, 0);
    check(count == 2, "two nodes in the instance");
    if (count == 2) {
        int32_t labels[2];
        double coordinates[6];
        inp_CAPI_Model_Nodes(model, inp_CAPI_INSTANCE, 0, labels, coordinates);
        check(labels[1] == 2 && coordinates[3] == 2.5, "the second node");
    }
    inp_CAPI_Model_Free(model);
}

int main(void) {
    char directory[] = "/tmp/capi-c-XXXXXX";
    char path[64];
    if (!mkdtemp(directory)) return 2;
    snprintf(path, sizeof path, "%s/deck.inp", directory);
    if (!writeDeck(path)) return 2;

    int const status = inp_CAPI_Parse(path, directory, true, 0, true, false, onStrings,
                                      onParameters, onList, onData);
    checkModel(path);
    remove(path);
    rmdir(directory);

    check(status == 0, "the parse returns 0");
    check(keywordCount == 2, "two keywords at the top level");
    check(strcmp(materialName, "STEEL") == 0, "the material's name");
    check(strcmp(densityText, "7800|Hot") == 0, "the density items as text");
    check(strcmp(plasticComment, " plastic") == 0, "the comment of *PLASTIC");
    check(nodeRows == 2 && secondNodeX == 2.5, "the node table");
    if (failures == 0) printf("capi_c_program: all checks passed\n");
    return failures == 0 ? 0 : 1;
}
