// The Office add-in interfaces, which no MinGW-w64 header declares:
// IDTExtensibility2 (the host's add-in interface), IRibbonExtensibility,
// IRibbonControl and IRibbonUI, with their vtable order.
//
// They sit in a named namespace on purpose: an interface that another module
// implements must never be declared inside an anonymous namespace, or GCC
// assumes every implementation is in this translation unit and miscompiles
// the virtual calls.
#pragma once

#include "platform/win32/win32_api.h"

namespace qvx::com {

enum ext_ConnectMode : int {
  ext_cm_AfterStartup = 0,
  ext_cm_Startup = 1,
  ext_cm_External = 2,
  ext_cm_CommandLine = 3,
  ext_cm_Solution = 4,
  ext_cm_UISetup = 5,
};

enum ext_DisconnectMode : int {
  ext_dm_HostShutdown = 0,
  ext_dm_UserClosed = 1,
  ext_dm_UISetupComplete = 2,
  ext_dm_SolutionClosed = 3,
};

// {B65AD801-ABAF-11D0-BB8B-00A0C90F2744}, dual; the host calls it through the vtable.
inline constexpr IID IID_IDTExtensibility2 = {
    0xB65AD801, 0xABAF, 0x11D0, {0xBB, 0x8B, 0x00, 0xA0, 0xC9, 0x0F, 0x27, 0x44}};
// {000C0396-0000-0000-C000-000000000046}
inline constexpr IID IID_IRibbonExtensibility = {
    0x000C0396, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
// {000C0395-0000-0000-C000-000000000046}
inline constexpr IID IID_IRibbonControl = {
    0x000C0395, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
// {000C03A7-0000-0000-C000-000000000046}
inline constexpr IID IID_IRibbonUI = {
    0x000C03A7, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

struct IDTExtensibility2 : public IDispatch {
  virtual HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application,
                                                 ext_ConnectMode connectMode, IDispatch* addInInst,
                                                 SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnDisconnection(ext_DisconnectMode removeMode,
                                                    SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) = 0;
  virtual HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) = 0;
};

struct IRibbonExtensibility : public IDispatch {
  // The markup for a ribbon id; S_OK with a null string for ids not customised.
  virtual HRESULT STDMETHODCALLTYPE GetCustomUI(BSTR ribbonId, BSTR* ribbonXml) = 0;
};

struct IRibbonControl : public IDispatch {
  virtual HRESULT STDMETHODCALLTYPE get_Id(BSTR* id) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Context(IDispatch** context) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Tag(BSTR* tag) = 0;
};

struct IRibbonUI : public IDispatch {
  virtual HRESULT STDMETHODCALLTYPE Invalidate() = 0;
  virtual HRESULT STDMETHODCALLTYPE InvalidateControl(BSTR controlId) = 0;
  virtual HRESULT STDMETHODCALLTYPE InvalidateControlMso(BSTR controlId) = 0;
  virtual HRESULT STDMETHODCALLTYPE ActivateTab(BSTR controlId) = 0;
  virtual HRESULT STDMETHODCALLTYPE ActivateTabMso(BSTR controlId) = 0;
  virtual HRESULT STDMETHODCALLTYPE ActivateTabQ(BSTR controlId, BSTR ns) = 0;
};

}  // namespace qvx::com
