"""ctypes declarations of the model entry of libfedeck.so (binding/inp_CAPI_Model.h)."""

import ctypes

ASSEMBLY = 0
PART = 1
INSTANCE = 2

NODE_SET = 0
ELEMENT_SET = 1

ELEMENT_FACES = 0
NODES = 1
ANALYTICAL = 2

CLEAN = 0
ERRORS = 1
UNREADABLE = 2
MISUSE = -1
FAILED = -2

Diagnostic = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_int, ctypes.c_char_p,
                              ctypes.c_char_p, ctypes.c_int, ctypes.c_char_p)

_model = ctypes.c_void_p
_int = ctypes.c_int
_address = ctypes.c_void_p

# name: (result type, argument types)
_SIGNATURES = {
    "inp_CAPI_Model_New": (_model, []),
    "inp_CAPI_Model_Read": (_int, [_model, ctypes.c_char_p, ctypes.c_char_p, Diagnostic,
                                   ctypes.c_void_p]),
    "inp_CAPI_Model_Free": (None, [_model]),
    "inp_CAPI_Model_LevelCount": (_int, [_model, _int]),
    "inp_CAPI_Model_LevelName": (ctypes.c_char_p, [_model, _int, _int]),
    "inp_CAPI_Model_InstancePart": (ctypes.c_char_p, [_model, _int]),
    "inp_CAPI_Model_InstanceTransform": (_int, [_model, _int, _address, _address]),
    "inp_CAPI_Model_NodeCount": (ctypes.c_int64, [_model, _int, _int]),
    "inp_CAPI_Model_Nodes": (_int, [_model, _int, _int, _address, _address]),
    "inp_CAPI_Model_ElementTypeCount": (_int, [_model, _int, _int]),
    "inp_CAPI_Model_ElementTypeName": (ctypes.c_char_p, [_model, _int, _int, _int]),
    "inp_CAPI_Model_ElementCount": (ctypes.c_int64, [_model, _int, _int, _int,
                                                     ctypes.POINTER(_int)]),
    "inp_CAPI_Model_Elements": (_int, [_model, _int, _int, _int, _address, _address]),
    "inp_CAPI_Model_SameNodes": (_int, [_model, _int, _int, _int, _int]),
    "inp_CAPI_Model_SameElements": (_int, [_model, _int, _int, _int, _int]),
    "inp_CAPI_Model_ReleaseElements": (_int, [_model]),
    "inp_CAPI_Model_SetCount": (_int, [_model, _int, _int, _int]),
    "inp_CAPI_Model_SetName": (ctypes.c_char_p, [_model, _int, _int, _int, _int]),
    "inp_CAPI_Model_SetSize": (ctypes.c_int64, [_model, _int, _int, _int, _int]),
    "inp_CAPI_Model_SetMembers": (_int, [_model, _int, _int, _int, _int, _address, _address]),
    "inp_CAPI_Model_SurfaceCount": (_int, [_model, _int, _int]),
    "inp_CAPI_Model_SurfaceName": (ctypes.c_char_p, [_model, _int, _int, _int]),
    "inp_CAPI_Model_SurfacePieceCount": (_int, [_model, _int, _int, _int]),
    "inp_CAPI_Model_SurfacePiece": (_int, [_model, _int, _int, _int, _int, ctypes.POINTER(_int),
                                           ctypes.POINTER(_int), ctypes.POINTER(ctypes.c_int64)]),
    "inp_CAPI_Model_SurfaceMembers": (_int, [_model, _int, _int, _int, _int, _address, _address,
                                             _address]),
    "inp_CAPI_Model_FaceCount": (_int, [_model]),
    "inp_CAPI_Model_FaceName": (ctypes.c_char_p, [_model, _int]),
    "inp_CAPI_VtkCell": (_int, [ctypes.c_char_p, ctypes.POINTER(_int), ctypes.POINTER(_int),
                                ctypes.POINTER(ctypes.c_char_p)]),
}


def declare(library):
    """Declares the model functions on the loaded library, once."""
    if getattr(library, "_fedeck_model_declared", False):
        return library
    for name, (result, arguments) in _SIGNATURES.items():
        function = getattr(library, name)
        function.restype = result
        function.argtypes = arguments
    library._fedeck_model_declared = True
    return library
