#include "deck/inp_KeywordOrigin.h"

cow_String const inp_KeywordOrigin::s_noFileName;
cow_List<cow_String> const inp_KeywordOrigin::s_noComments;

inp_KeywordOrigin::inp_KeywordOrigin(cow_String const& fileName) {
    if (!fileName.IsEmpty()) m_shared = new Shared{1, fileName, {}};
}

void inp_KeywordOrigin::drop(Shared* shared) noexcept {
    delete shared;
}

inp_KeywordOrigin::Shared& inp_KeywordOrigin::writable() {
    if (!m_shared) {
        m_shared = new Shared;
    } else if (m_shared->refs > 1) {
        auto* own = new Shared{1, m_shared->fileName, m_shared->comments};
        --m_shared->refs;
        m_shared = own;
    }
    return *m_shared;
}

// Setting what the origin already holds changes nothing, so that records
// given the same name again go on sharing.
void inp_KeywordOrigin::SetFileName(cow_String const& fileName) {
    if (FileName() == fileName) return;
    writable().fileName = fileName;
}

void inp_KeywordOrigin::SetComments(cow_List<cow_String> const& comments) {
    if (comments.IsEmpty() && Comments().IsEmpty()) return;
    writable().comments = comments;
}

void inp_KeywordOrigin::AddComment(cow_String const& comment) {
    writable().comments.Append(comment);
}

inp_KeywordOrigin inp_KeywordOrigin::WithoutComments() const {
    if (Comments().IsEmpty()) return *this;
    return inp_KeywordOrigin(FileName());
}
