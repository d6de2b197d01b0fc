// VerifyUser: checks a user name and password through the system's PAM stack
// (service "login"). The password is handed to PAM only: it is never logged
// and is wiped from the routine's copy once PAM has answered.
//
// Routines run under the StorLib guard, so the delay PAM modules ask for
// after a failed attempt would stall every controller request; the routine
// takes the delay over and skips it. Only callers of the root group reach
// methods at all.
#include <security/pam_appl.h>

#include <cstdlib>
#include <cstring>

#include "controller/routines/RoutineInput.h"
#include "controller/routines/Routines.h"
#include "controller/FsaifReturn.h"
#include "platform/Tkz.h"

namespace vex::cim::fwf {

namespace {

constexpr const char* kPamService = "login";
constexpr std::size_t kMaxCredential = 512;

// Answers every password prompt with the password; refuses any other question.
int conversation(int count, const struct pam_message** messages, struct pam_response** responses, void* data) {
    if (count <= 0 || data == nullptr) {
        return PAM_CONV_ERR;
    }
    auto* replies = static_cast<pam_response*>(std::calloc(static_cast<std::size_t>(count), sizeof(pam_response)));
    if (replies == nullptr) {
        return PAM_BUF_ERR;
    }
    const auto* password = static_cast<const std::string*>(data);
    for (int i = 0; i < count; ++i) {
        if (messages[i]->msg_style == PAM_PROMPT_ECHO_OFF) {
            replies[i].resp = ::strdup(password->c_str());
        } else if (messages[i]->msg_style == PAM_PROMPT_ECHO_ON) {
            for (int j = 0; j < i; ++j) {
                if (replies[j].resp != nullptr) {
                    ::explicit_bzero(replies[j].resp, std::strlen(replies[j].resp));
                    std::free(replies[j].resp);
                }
            }
            std::free(replies);
            return PAM_CONV_ERR;
        }
    }
    *responses = replies;
    return PAM_SUCCESS;
}

void noFailDelay(int, unsigned int, void*) {}

bool authenticate(const std::string& user, const std::string& password) {
    const pam_conv conv{conversation, const_cast<std::string*>(&password)};
    pam_handle_t* handle = nullptr;
    if (::pam_start(kPamService, user.c_str(), &conv, &handle) != PAM_SUCCESS) {
        return false;
    }
    void (*delay)(int, unsigned int, void*) = noFailDelay;
    ::pam_set_item(handle, PAM_FAIL_DELAY, reinterpret_cast<const void*>(delay));
    int status = ::pam_authenticate(handle, PAM_SILENT | PAM_DISALLOW_NULL_AUTHTOK);
    if (status == PAM_SUCCESS) {
        status = ::pam_acct_mgmt(handle, PAM_SILENT | PAM_DISALLOW_NULL_AUTHTOK);
    }
    ::pam_end(handle, status);
    return status == PAM_SUCCESS;
}

}  // namespace

unsigned int FsaifExVerifyUser(const CIMObjectPath&, const CIMMethodParam& in, CIMMethodParam&) {
    const std::optional<std::string> user = routine::text(in, "Username");
    if (!user || user->size() > kMaxCredential || user->find('\0') != std::string::npos) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid user name");
        return FSAIF_INVALID_PARAM;
    }
    std::optional<std::string> password = routine::text(in, "Password");
    if (!password || password->size() > kMaxCredential || password->find('\0') != std::string::npos) {
        TkzLogMsg(TKZ_LOG_ERROR, "No valid password");
        return FSAIF_INVALID_PARAM;
    }
    const bool ok = authenticate(*user, *password);
    ::explicit_bzero(&(*password)[0], password->size());
    if (!ok) {
        TkzLogMsg(TKZ_LOG_WARN, "VerifyUser: authentication failed for %s", user->c_str());
        return FSAIF_NOT_ALLOWED;
    }
    return FSAIF_SUCCESS;
}

}  // namespace vex::cim::fwf
