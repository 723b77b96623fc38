#include "genparamerror.h"

#include <string>

namespace ZetoGenParam {

CodeException::CodeException(int32_t code)
    : RuntimeException(("The camera library reports error " + std::to_string(code)).c_str(), __FILE__,
                       __LINE__)
    , m_code(code)
{
}

int32_t codeOfCurrentException()
{
    try {
        throw;
    } catch (const CodeException& e) {
        return e.code();
    } catch (const GENICAM_NAMESPACE::AccessException&) {
        return ZetoCam::ErrorGenICamAccess;
    } catch (const GENICAM_NAMESPACE::OutOfRangeException&) {
        return ZetoCam::ErrorGenICamRange;
    } catch (const GENICAM_NAMESPACE::InvalidArgumentException&) {
        return ZetoCam::ErrorGenICamInvalidArgument;
    } catch (const GENICAM_NAMESPACE::DynamicCastException&) {
        return ZetoCam::ErrorGenICamType;
    } catch (const GENICAM_NAMESPACE::PropertyException&) {
        return ZetoCam::ErrorGenICamTree;
    } catch (const GENICAM_NAMESPACE::LogicalErrorException&) {
        return ZetoCam::ErrorGenICamTree;
    } catch (const GENICAM_NAMESPACE::TimeoutException&) {
        return ZetoCam::ErrorNoDevice;
    } catch (const GENICAM_NAMESPACE::GenericException&) {
        return ZetoCam::ErrorGenICamGeneric;
    } catch (...) {
        return ZetoCam::ErrorUnknown;
    }
}

} // namespace ZetoGenParam
