#ifndef FEDECK_INP_CAPI_MODEL_H
#define FEDECK_INP_CAPI_MODEL_H
/*
 * The model of a deck for callers that can't use the C++ classes: a deck is
 * read and run through the whole road of a new job, and the maps it comes to
 * (nodes, elements, sets, surfaces, instances and their transforms) are
 * handed out in bulk. A caller asks for a count first, allocates, then has
 * the arrays filled in one call each: nothing crosses the boundary per node
 * or per element.
 *
 * The model has three kinds of level, each with its nodes, elements, sets
 * and surfaces, as `fedeck model` shows them:
 *   inp_CAPI_ASSEMBLY  the assembly's own (index 0, the only one)
 *   inp_CAPI_PART      each part, by index in ascending name order
 *   inp_CAPI_INSTANCE  each instance, by index in ascending name order: its
 *                      nodes placed by its transform in the global frame
 * A flat deck comes as its generated part ("PART-1") and instance
 * ("PART-1-1").
 *
 * Strings returned are owned by the model and valid until it is freed.
 * Functions that count return -1, and functions that fill return -1 and
 * leave the arrays alone, for a null model, a model not read, or a level,
 * type, set or surface index out of range. Arrays may not be null unless
 * said otherwise.
 *
 * Threads: a model is used by one thread at a time; models on different
 * threads are independent.
 */

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct inp_CAPI_Model inp_CAPI_Model;

enum inp_CAPI_ModelLevel { inp_CAPI_ASSEMBLY = 0, inp_CAPI_PART = 1, inp_CAPI_INSTANCE = 2 };

enum inp_CAPI_ModelSetKind { inp_CAPI_NODE_SET = 0, inp_CAPI_ELEMENT_SET = 1 };

enum inp_CAPI_ModelSurfaceType {
    inp_CAPI_ELEMENT_FACES = 0, /* element faces: ids are elements, faces index the face names */
    inp_CAPI_NODES = 1,         /* nodes with their areas */
    inp_CAPI_ANALYTICAL = 2     /* no members */
};

/* What inp_CAPI_Model_Read returns. */
enum inp_CAPI_ModelStatus {
    inp_CAPI_MODEL_CLEAN = 0,      /* no errors (warnings allowed) */
    inp_CAPI_MODEL_ERRORS = 1,     /* the deck has errors: the model holds what was built */
    inp_CAPI_MODEL_UNREADABLE = 2, /* the deck can't be opened: the model is empty */
    inp_CAPI_MODEL_MISUSE = -1,    /* a null model or file name, or a model read before */
    inp_CAPI_MODEL_FAILED = -2     /* a fault of the library (out of memory, say) */
};

/*
 * One diagnostic of the road, as it is found: severity 0 for a warning, 1
 * for an error, 2 for a fatal error; `file` and `keyword` null and `line` 0
 * where the message points nowhere. The strings are valid during the call.
 */
typedef void (*inp_CAPI_ModelDiagnostic)(void* context, int severity, char const* text,
                                         char const* file, int line, char const* keyword);

/* A new, empty model; null when out of memory. */
inp_CAPI_Model* inp_CAPI_Model_New(void);

/*
 * Reads the deck `fileName` (include files are looked for as written, then
 * in `includeDirectory`, or the deck's own directory when that is null or
 * empty) and runs the whole road. Each diagnostic goes to `diagnostic`
 * (may be null) with `context`. A model is read once.
 */
int inp_CAPI_Model_Read(inp_CAPI_Model* model, char const* fileName, char const* includeDirectory,
                        inp_CAPI_ModelDiagnostic diagnostic, void* context);

/* Frees the model and all it handed out; null is allowed. */
void inp_CAPI_Model_Free(inp_CAPI_Model* model);

/* -- levels --------------------------------------------------------------------------------- */

/* 1 for the assembly, the number of parts or of instances. */
int inp_CAPI_Model_LevelCount(inp_CAPI_Model const* model, int level);
/* The name of a part or an instance; "" for the assembly. */
char const* inp_CAPI_Model_LevelName(inp_CAPI_Model const* model, int level, int index);
/* The part an instance is of; null when the model does not say. */
char const* inp_CAPI_Model_InstancePart(inp_CAPI_Model const* model, int instance);
/*
 * The instance's transform: global = rotation * local + translation, the
 * rotation row by row (9 values). An instance without one gets the identity.
 */
int inp_CAPI_Model_InstanceTransform(inp_CAPI_Model const* model, int instance, double* rotation,
                                     double* translation);

/* -- nodes ---------------------------------------------------------------------------------- */

int64_t inp_CAPI_Model_NodeCount(inp_CAPI_Model const* model, int level, int index);
/* Labels ascending, and x, y, z of each (global for an instance). */
int inp_CAPI_Model_Nodes(inp_CAPI_Model const* model, int level, int index, int32_t* labels,
                         double* coordinates);

/* -- elements, by type in ascending name order ---------------------------------------------- */

int inp_CAPI_Model_ElementTypeCount(inp_CAPI_Model const* model, int level, int index);
char const* inp_CAPI_Model_ElementTypeName(inp_CAPI_Model const* model, int level, int index,
                                           int type);
/*
 * The elements of the type, and in `width` (may be null) the nodes of its
 * widest element: every row of the connectivity has that many, a shorter
 * element's padded with 0.
 */
int64_t inp_CAPI_Model_ElementCount(inp_CAPI_Model const* model, int level, int index, int type,
                                    int* width);
/* Labels ascending; `connectivity` holds count times width node labels. */
int inp_CAPI_Model_Elements(inp_CAPI_Model const* model, int level, int index, int type,
                            int32_t* labels, int32_t* connectivity);

/*
 * Whether two levels hand out the same nodes (one table, placed alike) or
 * the same elements (one table): 1 when they do, 0 when not, -1 for bad
 * arguments. A caller may then keep one array for both.
 */
int inp_CAPI_Model_SameNodes(inp_CAPI_Model const* model, int level, int index, int otherLevel,
                             int otherIndex);
int inp_CAPI_Model_SameElements(inp_CAPI_Model const* model, int level, int index, int otherLevel,
                                int otherIndex);
/*
 * Gives back the memory of the elements once the caller has read them (the
 * biggest part of a model): afterwards no level has elements. Sets and
 * surfaces stay. Returns 0, -1 for a model not read.
 */
int inp_CAPI_Model_ReleaseElements(inp_CAPI_Model* model);

/* -- sets, by name in ascending order ------------------------------------------------------- */

int inp_CAPI_Model_SetCount(inp_CAPI_Model const* model, int level, int index, int kind);
char const* inp_CAPI_Model_SetName(inp_CAPI_Model const* model, int level, int index, int kind,
                                   int set);
/* The members: the ids of the level's own, then of each instance (an
 * assembly set may span instances). */
int64_t inp_CAPI_Model_SetSize(inp_CAPI_Model const* model, int level, int index, int kind,
                               int set);
/*
 * The ids in the set's own order, and in `instances` (may be null) for each
 * the instance index it belongs to, -1 for the level's own.
 */
int inp_CAPI_Model_SetMembers(inp_CAPI_Model const* model, int level, int index, int kind, int set,
                              int32_t* ids, int32_t* instances);

/* -- surfaces, by name in ascending order --------------------------------------------------- */

int inp_CAPI_Model_SurfaceCount(inp_CAPI_Model const* model, int level, int index);
char const* inp_CAPI_Model_SurfaceName(inp_CAPI_Model const* model, int level, int index,
                                       int surface);
/*
 * A surface is made of pieces: a surface of a part or an instance of one
 * piece (instance -1), an assembly surface of its own nodes (piece 0,
 * instance -1, maybe empty) and then one piece per instance it covers.
 */
int inp_CAPI_Model_SurfacePieceCount(inp_CAPI_Model const* model, int level, int index,
                                     int surface);
/* The piece's instance index (-1 for the level's own), type and member count. */
int inp_CAPI_Model_SurfacePiece(inp_CAPI_Model const* model, int level, int index, int surface,
                                int piece, int* instance, int* type, int64_t* size);
/*
 * The members: element or node ids; for element faces in `faces` the index
 * of each one's face name (inp_CAPI_Model_FaceName), for nodes in `areas`
 * the area of each. `faces` and `areas` may be null.
 */
int inp_CAPI_Model_SurfaceMembers(inp_CAPI_Model const* model, int level, int index, int surface,
                                  int piece, int32_t* ids, int32_t* faces, double* areas);
/* The face names ("S1", "SPOS", ...) that the surfaces of the model use. */
int inp_CAPI_Model_FaceCount(inp_CAPI_Model const* model);
char const* inp_CAPI_Model_FaceName(inp_CAPI_Model const* model, int face);

/* -- the cells of viewers ------------------------------------------------------------------- */

/*
 * The VTK cell of an element type: its VTK cell type number (0 for a type
 * without one), in `nodeCount` the nodes it takes from the start of the
 * element's connectivity, in `order` (room for 20) the position in the
 * connectivity of each VTK node, and in `name` the cell's name as meshio
 * and other readers give it. Any of the three may be null.
 */
int inp_CAPI_VtkCell(char const* type, int* nodeCount, int* order, char const** name);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif /* FEDECK_INP_CAPI_MODEL_H */
