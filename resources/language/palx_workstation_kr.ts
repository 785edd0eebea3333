<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>AddPatternDialog</name>
    <message>
        <source>First pattern</source>
        <translation>첫 패턴</translation>
    </message>
</context>
<context>
    <name>AutomaticStackerDialog</name>
    <message>
        <source>Automatic layout</source>
        <translation>자동 배치</translation>
    </message>
    <message>
        <source>Top and bottom margin</source>
        <translation>위아래 여백</translation>
    </message>
    <message>
        <source>Left and right margin</source>
        <translation>좌우 여백</translation>
    </message>
    <message>
        <source>Space between products</source>
        <translation>제품 간격</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>%1 mm over the pallet&apos;s edge</source>
        <translation>팔레트 가장자리 밖 %1 mm</translation>
    </message>
    <message>
        <source>Nothing fits</source>
        <translation>들어가지 않음</translation>
    </message>
    <message>
        <source>No turned row fits</source>
        <translation>회전한 행이 들어가지 않음</translation>
    </message>
    <message>
        <source>Boxes: %1, area: %2 %</source>
        <translation>박스: %1, 면적: %2 %</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Confirm whether to overwrite the current stack type?</source>
        <translation>현재 배치를 덮어쓰시겠습니까?</translation>
    </message>
    <message>
        <source>Please select an effective stack type!</source>
        <translation>유효한 배치를 선택하십시오!</translation>
    </message>
</context>
<context>
    <name>CalibrationFrame</name>
    <message>
        <source>Pallet frame</source>
        <translation>팔레트 좌표계</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>툴</translation>
    </message>
    <message>
        <source>Incoming</source>
        <translation>반입</translation>
    </message>
</context>
<context>
    <name>CascadeNestingWizard</name>
    <message>
        <source>Layers</source>
        <translation>단</translation>
    </message>
    <message>
        <source>Layer sequence</source>
        <translation>단 순서</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>적재</translation>
    </message>
</context>
<context>
    <name>ControllerDialog</name>
    <message>
        <source>Recipes on the controller</source>
        <translation>컨트롤러의 레시피</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>What the comparison says</source>
        <translation>비교 결과</translation>
    </message>
    <message>
        <source>Recipes of panel and controller</source>
        <translation>패널과 컨트롤러의 레시피</translation>
    </message>
    <message>
        <source>Send everything</source>
        <translation>모두 보내기</translation>
    </message>
    <message>
        <source>Send all recipes to the controller</source>
        <translation>모든 레시피를 컨트롤러로 보내기</translation>
    </message>
    <message>
        <source>Why nothing can be sent</source>
        <translation>보낼 수 없는 이유</translation>
    </message>
    <message>
        <source>Active tool</source>
        <translation>사용 중인 툴</translation>
    </message>
    <message>
        <source>Tool to switch to</source>
        <translation>전환할 툴</translation>
    </message>
    <message>
        <source>Switch tool</source>
        <translation>툴 전환</translation>
    </message>
    <message>
        <source>Switch the active tool</source>
        <translation>사용 중인 툴 전환</translation>
    </message>
    <message>
        <source>There is no connection to the controller. Editing goes on; send the recipes when it is back.</source>
        <translation>컨트롤러에 연결되어 있지 않습니다. 편집은 계속할 수 있습니다. 연결되면 레시피를 보내십시오.</translation>
    </message>
    <message>
        <source>The controller is being asked for its recipes.</source>
        <translation>컨트롤러의 레시피를 조회하고 있습니다.</translation>
    </message>
    <message>
        <source>The controller does not tell its recipes: %1</source>
        <translation>컨트롤러가 레시피를 알려 주지 않습니다: %1</translation>
    </message>
    <message>
        <source>The controller holds all %1 recipes as they are here.</source>
        <translation>컨트롤러의 레시피 %1개가 여기와 같습니다.</translation>
    </message>
    <message>
        <source>%1 of %2 recipes differ. Send everything to make the controller&apos;s the same.</source>
        <translation>레시피 %2개 중 %1개가 다릅니다. 모두 보내면 같아집니다.</translation>
    </message>
    <message>
        <source>Active tool: %1</source>
        <translation>사용 중인 툴: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>Not possible without a connection.</source>
        <translation>연결이 없으면 할 수 없습니다.</translation>
    </message>
    <message>
        <source>Shared tool %1</source>
        <translation>공용 툴 %1</translation>
    </message>
    <message>
        <source>Tool of %1</source>
        <translation>%1의 툴</translation>
    </message>
    <message>
        <source>The recipes are being sent.</source>
        <translation>레시피를 보내고 있습니다.</translation>
    </message>
    <message>
        <source>The controller took all %1 recipes.</source>
        <translation>컨트롤러가 레시피 %1개를 모두 받았습니다.</translation>
    </message>
    <message>
        <source>The recipes were not taken: %1</source>
        <translation>레시피를 받지 않았습니다: %1</translation>
    </message>
    <message>
        <source>The tool is being switched.</source>
        <translation>툴을 전환하고 있습니다.</translation>
    </message>
    <message>
        <source>The controller works with the tool %1.</source>
        <translation>컨트롤러가 툴 %1을(를) 사용합니다.</translation>
    </message>
    <message>
        <source>The controller did not take the tool. The log may say why.</source>
        <translation>컨트롤러가 툴을 받지 않았습니다. 이유는 로그에 있을 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>DirectionsFrame</name>
    <message>
        <source>Pattern</source>
        <translation>패턴</translation>
    </message>
    <message>
        <source>Plan of the pattern</source>
        <translation>패턴 평면도</translation>
    </message>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Choose all products</source>
        <translation>모든 제품 선택</translation>
    </message>
    <message>
        <source>Several</source>
        <translation>여러 개</translation>
    </message>
    <message>
        <source>Choose several products</source>
        <translation>여러 제품 선택</translation>
    </message>
    <message>
        <source>Propose</source>
        <translation>제안</translation>
    </message>
    <message>
        <source>Propose sides for the chosen products, or for all</source>
        <translation>선택한 제품 또는 모두의 방향 제안</translation>
    </message>
    <message>
        <source>What is set</source>
        <translation>설정 내용</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>방향</translation>
    </message>
    <message>
        <source>From the upper left</source>
        <translation>왼쪽 위에서</translation>
    </message>
    <message>
        <source>From above on the plan</source>
        <translation>평면도 위쪽에서</translation>
    </message>
    <message>
        <source>From the upper right</source>
        <translation>오른쪽 위에서</translation>
    </message>
    <message>
        <source>From the left</source>
        <translation>왼쪽에서</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>바로 위</translation>
    </message>
    <message>
        <source>Straight down</source>
        <translation>곧장 아래로</translation>
    </message>
    <message>
        <source>From the right</source>
        <translation>오른쪽에서</translation>
    </message>
    <message>
        <source>From the lower left</source>
        <translation>왼쪽 아래에서</translation>
    </message>
    <message>
        <source>From below on the plan</source>
        <translation>평면도 아래쪽에서</translation>
    </message>
    <message>
        <source>From the lower right</source>
        <translation>오른쪽 아래에서</translation>
    </message>
    <message>
        <source>No products</source>
        <translation>제품 없음</translation>
    </message>
    <message>
        <source>All products</source>
        <translation>모든 제품</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>제품 %1</translation>
    </message>
    <message>
        <source>%1 products chosen</source>
        <translation>제품 %1개 선택됨</translation>
    </message>
</context>
<context>
    <name>EditTools</name>
    <message>
        <source>Choose all products</source>
        <translation>모든 제품 선택</translation>
    </message>
    <message>
        <source>Choose several products by tapping</source>
        <translation>눌러서 여러 제품 선택</translation>
    </message>
    <message>
        <source>Move the plan with a finger</source>
        <translation>손가락으로 평면도 이동</translation>
    </message>
    <message>
        <source>Snap to edges and neighbours</source>
        <translation>가장자리와 이웃에 맞춤</translation>
    </message>
    <message>
        <source>Add a product</source>
        <translation>제품 추가</translation>
    </message>
    <message>
        <source>Copy the chosen products</source>
        <translation>선택한 제품 복사</translation>
    </message>
    <message>
        <source>Paste products</source>
        <translation>제품 붙여넣기</translation>
    </message>
    <message>
        <source>Remove the chosen products</source>
        <translation>선택한 제품 삭제</translation>
    </message>
    <message>
        <source>Turn by 90 degrees to the left</source>
        <translation>왼쪽으로 90도 회전</translation>
    </message>
    <message>
        <source>Turn by 90 degrees to the right</source>
        <translation>오른쪽으로 90도 회전</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>왼쪽으로 이동</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>오른쪽으로 이동</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>위로 이동</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>아래로 이동</translation>
    </message>
    <message>
        <source>Step of moving</source>
        <translation>이동 간격</translation>
    </message>
    <message>
        <source>Mirror the pattern, left and right</source>
        <translation>패턴 좌우 반전</translation>
    </message>
    <message>
        <source>Mirror the pattern, top and bottom</source>
        <translation>패턴 상하 반전</translation>
    </message>
    <message>
        <source>Turn the whole pattern by 180 degrees</source>
        <translation>패턴 전체 180도 회전</translation>
    </message>
    <message>
        <source>Angle to turn by</source>
        <translation>회전 각도</translation>
    </message>
    <message>
        <source>Turn by the angle beside</source>
        <translation>옆의 각도만큼 회전</translation>
    </message>
    <message>
        <source>Align left edges</source>
        <translation>왼쪽 맞춤</translation>
    </message>
    <message>
        <source>Align middles across</source>
        <translation>가로 가운데 맞춤</translation>
    </message>
    <message>
        <source>Align right edges</source>
        <translation>오른쪽 맞춤</translation>
    </message>
    <message>
        <source>Space evenly across</source>
        <translation>가로 간격 균등</translation>
    </message>
    <message>
        <source>Align upper edges</source>
        <translation>위쪽 맞춤</translation>
    </message>
    <message>
        <source>Align middles along</source>
        <translation>세로 가운데 맞춤</translation>
    </message>
    <message>
        <source>Align lower edges</source>
        <translation>아래쪽 맞춤</translation>
    </message>
    <message>
        <source>Space evenly along</source>
        <translation>세로 간격 균등</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Copy, remove, turn</source>
        <translation>복사, 삭제, 회전</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>Whole pattern; turn by an angle</source>
        <translation>패턴 전체; 각도로 회전</translation>
    </message>
    <message>
        <source>Align and space across</source>
        <translation>가로 맞춤과 간격</translation>
    </message>
    <message>
        <source>Align and space along</source>
        <translation>세로 맞춤과 간격</translation>
    </message>
    <message>
        <source>Show the plan larger</source>
        <translation>평면도 확대</translation>
    </message>
    <message>
        <source>Show the plan smaller</source>
        <translation>평면도 축소</translation>
    </message>
</context>
<context>
    <name>ExchangeTableModel</name>
    <message>
        <source>ticked</source>
        <translation>선택됨</translation>
    </message>
    <message>
        <source>not ticked</source>
        <translation>선택 안 됨</translation>
    </message>
</context>
<context>
    <name>ExchangeText</name>
    <message>
        <source>recipe %1</source>
        <translation>레시피 %1</translation>
    </message>
    <message>
        <source>recipe %1 &quot;%2&quot;</source>
        <translation>레시피 %1 &quot;%2&quot;</translation>
    </message>
    <message>
        <source>holds no list of recipes</source>
        <translation>레시피 목록이 없습니다</translation>
    </message>
    <message>
        <source>Writing the file</source>
        <translation>파일 쓰는 중</translation>
    </message>
    <message>
        <source>Reading the file</source>
        <translation>파일 읽는 중</translation>
    </message>
</context>
<context>
    <name>FeedingDirectionWizard</name>
    <message>
        <source>Feeding directions</source>
        <translation>투입 방향</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>방향</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>적재</translation>
    </message>
</context>
<context>
    <name>FieldText</name>
    <message>
        <source>%1 is outside of %2 to %3%4.</source>
        <translation>%1은(는) %2 ~ %3%4 범위를 벗어났습니다.</translation>
    </message>
    <message>
        <source>With this margin no product fits on the pallet.</source>
        <translation>이 여백으로는 팔레트에 제품을 하나도 놓을 수 없습니다.</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source> kg</source>
        <translation> kg</translation>
    </message>
    <message>
        <source>The product is larger than the pallet; it will reach over the edge.</source>
        <translation>제품이 팔레트보다 커서 가장자리 밖으로 나옵니다.</translation>
    </message>
</context>
<context>
    <name>FrameText</name>
    <message>
        <source>The pallet&apos;s place needs three calibration points.</source>
        <translation>팔레트 위치에는 보정 포인트 3개가 필요합니다.</translation>
    </message>
</context>
<context>
    <name>HomeParts</name>
    <message>
        <source>Production</source>
        <translation>생산</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>레시피</translation>
    </message>
</context>
<context>
    <name>ImExportDialog</name>
    <message>
        <source>How many are ticked</source>
        <translation>선택한 개수</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>찾아보기</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>파일 선택</translation>
    </message>
    <message>
        <source>When a name is taken</source>
        <translation>이름이 이미 있으면</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 변경</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>바꾸기</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>버리기</translation>
    </message>
    <message>
        <source>Tick all</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Tick none</source>
        <translation>모두 해제</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>레시피</translation>
    </message>
    <message>
        <source>Undo the last import</source>
        <translation>마지막 가져오기 취소</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Import recipes</source>
        <translation>레시피 가져오기</translation>
    </message>
    <message>
        <source>Export recipes</source>
        <translation>레시피 내보내기</translation>
    </message>
    <message>
        <source>No file chosen</source>
        <translation>파일 선택 안 됨</translation>
    </message>
    <message>
        <source>No place chosen</source>
        <translation>위치 선택 안 됨</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>These recipes are here already. Choose a file.</source>
        <translation>이 레시피들은 이미 있습니다. 파일을 선택하십시오.</translation>
    </message>
    <message>
        <source>%1 of %2 ticked</source>
        <translation>%2개 중 %1개 선택</translation>
    </message>
    <message>
        <source>Open XML file</source>
        <translation>XML 파일 열기</translation>
    </message>
    <message>
        <source>XML (*.xml)</source>
        <translation>XML (*.xml)</translation>
    </message>
    <message>
        <source>Save XML file</source>
        <translation>XML 파일 저장</translation>
    </message>
    <message>
        <source>Choose a file to import from.</source>
        <translation>가져올 파일을 선택하십시오.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was changed.</source>
        <translation>취소했습니다. 바뀐 것이 없습니다.</translation>
    </message>
    <message>
        <source>Imported: %1 new recipes, %2 of them replace others.</source>
        <translation>레시피 %1개를 가져왔고 그중 %2개는 기존 것을 바꾸었습니다.</translation>
    </message>
    <message>
        <source>Export path can not be empty!</source>
        <translation>내보내기 경로는 비워 둘 수 없습니다!</translation>
    </message>
    <message>
        <source>Cancelled. No file was written.</source>
        <translation>취소했습니다. 파일을 쓰지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 recipes were written to %2.</source>
        <translation>레시피 %1개를 %2에 썼습니다.</translation>
    </message>
    <message>
        <source>%1 imported recipes are removed, with what was changed in them since, and %2 replaced ones come back.</source>
        <translation>가져온 레시피 %1개는 그 뒤의 변경과 함께 삭제되고, 바뀌었던 %2개가 돌아옵니다.</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>마지막 가져오기를 취소했습니다.</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>레시피</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>처리 내용</translation>
    </message>
</context>
<context>
    <name>ImExportProjectDialog</name>
    <message>
        <source>Title</source>
        <translation>제목</translation>
    </message>
    <message>
        <source>Select Project</source>
        <translation>프로젝트 선택</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>파일 선택</translation>
    </message>
    <message>
        <source>Please select a project and ensure that the imported project file is complete, otherwise the import will fail!</source>
        <translation>프로젝트를 선택하고 파일이 온전한지 확인하십시오. 아니면 가져오기가 실패합니다!</translation>
    </message>
    <message>
        <source>Folder for the archives</source>
        <translation>압축 파일 폴더</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>폴더</translation>
    </message>
    <message>
        <source>Choose the folder for the archives</source>
        <translation>압축 파일 폴더 선택</translation>
    </message>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Choose all</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Choose none</source>
        <translation>선택 해제</translation>
    </message>
    <message>
        <source>You can select the following actions to handle projects with the same name in the imported content. Rename the project by default, or you can choose to replace an existing project.</source>
        <translation>이름이 같은 프로젝트의 처리 방법을 고를 수 있습니다. 기본은 이름 바꾸기이며 기존 것을 바꿀 수도 있습니다.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 변경</translation>
    </message>
    <message>
        <source>Rename the imported project</source>
        <translation>가져온 프로젝트 이름 바꾸기</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>바꾸기</translation>
    </message>
    <message>
        <source>Replace the existing project</source>
        <translation>기존 프로젝트 바꾸기</translation>
    </message>
    <message>
        <source>Project templates</source>
        <translation>프로젝트 템플릿</translation>
    </message>
    <message>
        <source>Leave the templates</source>
        <translation>템플릿 그대로</translation>
    </message>
    <message>
        <source>Reset template</source>
        <translation>템플릿 초기화</translation>
    </message>
    <message>
        <source>Custom template</source>
        <translation>사용자 템플릿</translation>
    </message>
    <message>
        <source>Archive of templates</source>
        <translation>템플릿 압축 파일</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Choose the archive of templates</source>
        <translation>템플릿 압축 파일 선택</translation>
    </message>
    <message>
        <source>Export the program templates</source>
        <translation>프로그램 템플릿 내보내기</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>처리 결과</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Project archives</source>
        <translation>프로젝트 압축 파일</translation>
    </message>
    <message>
        <source>Import projects</source>
        <translation>프로젝트 가져오기</translation>
    </message>
    <message>
        <source>Export projects</source>
        <translation>프로젝트 내보내기</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>No folder is chosen</source>
        <translation>폴더 선택 안 됨</translation>
    </message>
    <message>
        <source>No file is chosen</source>
        <translation>파일 선택 안 됨</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>압축 파일</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>처리 내용</translation>
    </message>
    <message>
        <source>Choose project archives</source>
        <translation>프로젝트 압축 파일 선택</translation>
    </message>
    <message>
        <source>Checking the archives</source>
        <translation>압축 파일 검사 중</translation>
    </message>
    <message>
        <source>Choose a folder for the archives</source>
        <translation>압축 파일 폴더를 선택하십시오</translation>
    </message>
    <message>
        <source>Not imported</source>
        <translation>가져오지 않음</translation>
    </message>
    <message>
        <source>Replaces the project %1</source>
        <translation>프로젝트 %1을(를) 바꿈</translation>
    </message>
    <message>
        <source>Renamed to %1</source>
        <translation>%1(으)로 바뀜</translation>
    </message>
    <message>
        <source>New project %1</source>
        <translation>새 프로젝트 %1</translation>
    </message>
    <message>
        <source>New file %1</source>
        <translation>새 파일 %1</translation>
    </message>
    <message>
        <source>Not exported</source>
        <translation>내보내지 않음</translation>
    </message>
    <message>
        <source>Replaces %1 of %2</source>
        <translation>%2의 %1을(를) 바꿈</translation>
    </message>
    <message>
        <source>Imported: %1</source>
        <translation>가져옴: %1</translation>
    </message>
    <message>
        <source>Exported.</source>
        <translation>내보냈습니다.</translation>
    </message>
    <message>
        <source>Cancelled: the folder is as it was before.</source>
        <translation>취소했습니다: 폴더는 그대로입니다.</translation>
    </message>
    <message>
        <source>Not everything was exported; the log says why.</source>
        <translation>모두 내보내지 못했습니다. 이유는 로그에 있습니다.</translation>
    </message>
    <message>
        <source>Cancelled: everything is as it was before.</source>
        <translation>취소했습니다: 모두 그대로입니다.</translation>
    </message>
    <message>
        <source>Nothing was imported; the log says why.</source>
        <translation>가져온 것이 없습니다. 이유는 로그에 있습니다.</translation>
    </message>
    <message>
        <source>Take the last import back? What was changed in it since is lost: %1</source>
        <translation>마지막 가져오기를 취소할까요? 그 뒤의 변경은 사라집니다: %1</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>마지막 가져오기를 취소했습니다.</translation>
    </message>
    <message>
        <source>None</source>
        <comment>choose none</comment>
        <translation>모두 해제</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>가져오지 못함: %1</translation>
    </message>
    <message>
        <source>It was not imported; the log says why</source>
        <translation>가져오지 못했습니다. 이유는 로그에 있습니다</translation>
    </message>
</context>
<context>
    <name>ImportText</name>
    <message>
        <source>Merging the recipes</source>
        <translation>레시피 병합 중</translation>
    </message>
</context>
<context>
    <name>IncomingFrame</name>
    <message>
        <source>Note</source>
        <translation>참고</translation>
    </message>
    <message>
        <source>Conveyor</source>
        <translation>컨베이어</translation>
    </message>
    <message>
        <source>Corner that products lie in</source>
        <translation>제품이 놓이는 모서리</translation>
    </message>
    <message>
        <source>Product on the conveyor</source>
        <translation>컨베이어 위의 제품</translation>
    </message>
    <message>
        <source>Direction of the conveyor</source>
        <translation>컨베이어 방향</translation>
    </message>
    <message>
        <source>Way to the product</source>
        <translation>제품까지의 경로</translation>
    </message>
    <message>
        <source>Enter point X</source>
        <translation>진입 포인트 X</translation>
    </message>
    <message>
        <source>Enter point Y</source>
        <translation>진입 포인트 Y</translation>
    </message>
    <message>
        <source>Enter point above</source>
        <translation>진입 포인트 높이</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>접근</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Along X</source>
        <translation>X 방향</translation>
    </message>
    <message>
        <source>Along Y</source>
        <translation>Y 방향</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>모서리</translation>
    </message>
    <message>
        <source>Used by all recipes with &quot;Shared tool&quot;. Touch the corner at the conveyor&apos;s end that products lie in with the tool; the pick point is the middle of the product.</source>
        <translation>&quot;공용 툴&quot;을 쓰는 모든 레시피에 적용됩니다. 제품이 놓이는 컨베이어 끝의 모서리를 툴로 접촉하십시오. 집기 포인트는 제품의 중앙입니다.</translation>
    </message>
    <message>
        <source>Pick point</source>
        <translation>집기 포인트</translation>
    </message>
    <message>
        <source>Enter point</source>
        <translation>진입 포인트</translation>
    </message>
    <message>
        <source>The robot picks every product at the pick point.</source>
        <translation>로봇은 모든 제품을 집기 포인트에서 집습니다.</translation>
    </message>
    <message>
        <source>Lengthwise</source>
        <translation>세로</translation>
    </message>
    <message>
        <source>Crosswise</source>
        <translation>가로</translation>
    </message>
</context>
<context>
    <name>ItemTableModel</name>
    <message>
        <source>Top</source>
        <translation>위</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>왼쪽 아래</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>오른쪽 아래</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>x
mm</source>
        <translation>x
mm</translation>
    </message>
    <message>
        <source>y
mm</source>
        <translation>y
mm</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>방향</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>Number</source>
        <translation>숫자</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Allowed values</source>
        <translation>허용 값</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>소수점</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>부호 바꾸기</translation>
    </message>
    <message>
        <source>Delete the last digit</source>
        <translation>마지막 숫자 지우기</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Clear the value</source>
        <translation>값 지우기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 ~ %2 %3</translation>
    </message>
    <message>
        <source>Not allowed. Enter %1.</source>
        <translation>허용되지 않습니다. %1 값을 입력하십시오.</translation>
    </message>
    <message>
        <source>Allowed: %1</source>
        <translation>허용: %1</translation>
    </message>
</context>
<context>
    <name>LayerSeriesDialog</name>
    <message>
        <source>Layers in turn</source>
        <translation>교대 단</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>패턴</translation>
    </message>
    <message>
        <source>In turn with</source>
        <translation>교대 패턴</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>단</translation>
    </message>
    <message>
        <source>Sheet after every so many</source>
        <translation>간지 간격</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>What the stack will be</source>
        <translation>적재 결과</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>none</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Mirrored left to right</source>
        <translation>좌우 반전</translation>
    </message>
    <message>
        <source>Mirrored front to back</source>
        <translation>앞뒤 반전</translation>
    </message>
    <message>
        <source>Turned by half</source>
        <translation>반 바퀴 회전</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>맨 위에</translation>
    </message>
    <message>
        <source>From layer %1 on, replacing</source>
        <translation>%1단부터 대체</translation>
    </message>
</context>
<context>
    <name>LayerTableModel</name>
    <message>
        <source>Separator sheet</source>
        <translation>간지</translation>
    </message>
    <message>
        <source>Empty (end of stack)</source>
        <translation>비어 있음 (적재 끝)</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(없음)</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>단</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>패턴</translation>
    </message>
    <message>
        <source>Boxes</source>
        <translation>박스</translation>
    </message>
    <message>
        <source>From
mm</source>
        <translation>하단
mm</translation>
    </message>
    <message>
        <source>To
mm</source>
        <translation>상단
mm</translation>
    </message>
</context>
<context>
    <name>LayerText</name>
    <message>
        <source>is a separator sheet, but the recipe has separator sheets switched off</source>
        <translation>간지이지만 레시피에서 간지 사용이 꺼져 있습니다</translation>
    </message>
    <message>
        <source>is a separator sheet, but the sheet has no height</source>
        <translation>간지이지만 간지의 높이가 없습니다</translation>
    </message>
    <message>
        <source>has no pattern; this layer and those above it get no points</source>
        <translation>패턴이 없습니다. 이 단과 그 위의 단에는 포인트가 생성되지 않습니다</translation>
    </message>
    <message>
        <source>uses the pattern &quot;%1&quot;, which this recipe does not have</source>
        <translation>이 레시피에 없는 패턴 &quot;%1&quot;을(를) 사용합니다</translation>
    </message>
    <message>
        <source>uses the pattern &quot;%1&quot;, which holds no products</source>
        <translation>제품이 없는 패턴 &quot;%1&quot;을(를) 사용합니다</translation>
    </message>
    <message>
        <source>Layer %1 %2.</source>
        <translation>%1단: %2.</translation>
    </message>
    <message>
        <source>The recipe has no layers.</source>
        <translation>레시피에 단이 없습니다.</translation>
    </message>
    <message>
        <source>Layer %1 lies on an empty layer; the stack ends at its first empty layer, so only empty layers may follow it.</source>
        <translation>%1단이 빈 단 위에 있습니다. 적재는 첫 번째 빈 단에서 끝나므로 그 뒤에는 빈 단만 올 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>LayersFrame</name>
    <message>
        <source>Layers from the pallet up</source>
        <translation>팔레트부터 위로의 단</translation>
    </message>
    <message>
        <source>What is wrong with the layers</source>
        <translation>단의 문제점</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>레시피 합계</translation>
    </message>
    <message>
        <source>Plan of the layer</source>
        <translation>단 평면도</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>패턴</translation>
    </message>
    <message>
        <source>Height offset</source>
        <translation>높이 오프셋</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Add a layer on top</source>
        <translation>맨 위에 단 추가</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>삽입</translation>
    </message>
    <message>
        <source>Insert before the chosen layer</source>
        <translation>선택한 단 앞에 삽입</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>반복</translation>
    </message>
    <message>
        <source>No layer chosen</source>
        <translation>선택한 단 없음</translation>
    </message>
    <message>
        <source>Plan</source>
        <translation>평면도</translation>
    </message>
    <message>
        <source>Show the plan of the layer instead of the stack</source>
        <translation>적재 대신 단의 평면도 표시</translation>
    </message>
    <message>
        <source>Remove the chosen layers</source>
        <translation>선택한 단 삭제</translation>
    </message>
    <message>
        <source>Place the chosen layers earlier</source>
        <translation>선택한 단을 앞으로 이동</translation>
    </message>
    <message>
        <source>Place the chosen layers later</source>
        <translation>선택한 단을 뒤로 이동</translation>
    </message>
    <message>
        <source>Several</source>
        <translation>여러 개</translation>
    </message>
    <message>
        <source>Choose several layers</source>
        <translation>여러 단 선택</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>간지</translation>
    </message>
    <message>
        <source>Lay a separator sheet onto each chosen layer</source>
        <translation>선택한 각 단 위에 간지 놓기</translation>
    </message>
    <message>
        <source>Repeat the chosen layers on top</source>
        <translation>선택한 단을 맨 위에 반복</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message>
        <source>Lay layers in turn, or mirror the chosen layers</source>
        <translation>단을 교대로 놓거나 선택한 단을 반전</translation>
    </message>
    <message>
        <source>Pattern of %1 layers</source>
        <translation>%1개 단의 패턴</translation>
    </message>
    <message>
        <source>Pattern of layer %1</source>
        <translation>%1단의 패턴</translation>
    </message>
    <message>
        <source>A recipe holds at most %1 layers.</source>
        <translation>레시피의 단은 최대 %1개입니다.</translation>
    </message>
    <message>
        <source>There is a sheet already, or no box to lay it on.</source>
        <translation>이미 간지가 있거나 놓을 박스가 없습니다.</translation>
    </message>
    <message>
        <source>The chosen layers look the same then.</source>
        <translation>선택한 단은 달라지지 않습니다.</translation>
    </message>
    <message>
        <source>Layers in turn...</source>
        <translation>단 교대...</translation>
    </message>
    <message>
        <source>Mirror left to right</source>
        <translation>좌우 반전</translation>
    </message>
    <message>
        <source>Mirror front to back</source>
        <translation>앞뒤 반전</translation>
    </message>
    <message>
        <source>Turn by half</source>
        <translation>반 바퀴 회전</translation>
    </message>
</context>
<context>
    <name>LayoutText</name>
    <message>
        <source>Matrix (vertical)</source>
        <translation>행렬 (세로)</translation>
    </message>
    <message>
        <source>Matrix (horizontal)</source>
        <translation>행렬 (가로)</translation>
    </message>
    <message>
        <source>Crisscross</source>
        <translation>교차</translation>
    </message>
    <message>
        <source>Back letterform</source>
        <translation>회자형</translation>
    </message>
    <message>
        <source>Wobj number is greater than 200</source>
        <translation>제품 수가 200보다 많습니다</translation>
    </message>
</context>
<context>
    <name>LongWorkDialog</name>
    <message>
        <source>What is being done</source>
        <translation>진행 중인 작업</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행 상황</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>메시지 닫기</translation>
    </message>
</context>
<context>
    <name>MoveToDialog</name>
    <message>
        <source>Target</source>
        <translation>목표</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>현재</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>축</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>직선</translation>
    </message>
    <message>
        <source>Move on a straight line</source>
        <translation>직선으로 이동</translation>
    </message>
    <message>
        <source>By joints</source>
        <translation>축으로</translation>
    </message>
    <message>
        <source>Move joint by joint</source>
        <translation>축별로 이동</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message>
        <source>State of the move</source>
        <translation>이동 상태</translation>
    </message>
    <message>
        <source>Share of the way</source>
        <translation>이동한 비율</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Hold to move</source>
        <translation>누르고 있으면 이동</translation>
    </message>
    <message>
        <source>Hold to move the robot to the point</source>
        <translation>누르고 있으면 로봇이 포인트로 이동</translation>
    </message>
    <message>
        <source>Move to the point: %1</source>
        <translation>포인트로 이동: %1</translation>
    </message>
    <message>
        <source>Move to the point</source>
        <translation>포인트로 이동</translation>
    </message>
    <message>
        <source>Target %1</source>
        <translation>목표 %1</translation>
    </message>
    <message>
        <source>Present %1</source>
        <translation>현재 %1</translation>
    </message>
    <message>
        <source>No controller. %1</source>
        <translation>컨트롤러가 없습니다. %1</translation>
    </message>
    <message>
        <source>Nobody has taught this point.</source>
        <translation>이 포인트는 교시되지 않았습니다.</translation>
    </message>
    <message>
        <source>Hold the button to move. The way takes %1 s.</source>
        <translation>버튼을 누르고 있으면 이동합니다. %1 s 걸립니다.</translation>
    </message>
    <message>
        <source>Hold the button to move.</source>
        <translation>버튼을 누르고 있으면 이동합니다.</translation>
    </message>
    <message>
        <source>The controller refuses the move: %1.</source>
        <translation>컨트롤러가 이동을 거부했습니다: %1.</translation>
    </message>
    <message>
        <source>Waiting for the controller.</source>
        <translation>컨트롤러를 기다리는 중입니다.</translation>
    </message>
    <message>
        <source>The robot moves. Let go to stop it.</source>
        <translation>로봇이 움직입니다. 놓으면 멈춥니다.</translation>
    </message>
    <message>
        <source>The robot is stopping.</source>
        <translation>로봇이 멈추는 중입니다.</translation>
    </message>
    <message>
        <source>Stopped before the point.</source>
        <translation>포인트 앞에서 멈췄습니다.</translation>
    </message>
    <message>
        <source>Arrived.</source>
        <translation>도착했습니다.</translation>
    </message>
    <message>
        <source>Tool in the pallet&apos;s frame</source>
        <translation>팔레트 좌표계의 툴</translation>
    </message>
    <message>
        <source>Flange in the pallet&apos;s frame</source>
        <translation>팔레트 좌표계의 플랜지</translation>
    </message>
    <message>
        <source>Tool in the robot&apos;s base</source>
        <translation>로봇 베이스의 툴</translation>
    </message>
    <message>
        <source>Flange in the robot&apos;s base</source>
        <translation>로봇 베이스의 플랜지</translation>
    </message>
</context>
<context>
    <name>NameDialog</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Why the name is refused</source>
        <translation>이름이 거부된 이유</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>NewPatternDialog</name>
    <message>
        <source>New pattern</source>
        <translation>새 패턴</translation>
    </message>
</context>
<context>
    <name>NodeBinder</name>
    <message>
        <source>%1 to %2 can be entered. The value stays as it was.</source>
        <translation>%1~%2을(를) 입력할 수 있습니다. 값은 그대로입니다.</translation>
    </message>
</context>
<context>
    <name>OrderTools</name>
    <message>
        <source>Begin at</source>
        <translation>시작 위치</translation>
    </message>
    <message>
        <source>Corner at which the order begins</source>
        <translation>순서가 시작되는 모서리</translation>
    </message>
    <message>
        <source>By rows</source>
        <translation>행 순서</translation>
    </message>
    <message>
        <source>Number row by row from the corner</source>
        <translation>모서리부터 행별로 번호 매기기</translation>
    </message>
    <message>
        <source>By columns</source>
        <translation>열 순서</translation>
    </message>
    <message>
        <source>Number column by column from the corner</source>
        <translation>모서리부터 열별로 번호 매기기</translation>
    </message>
    <message>
        <source>Outward</source>
        <translation>바깥쪽으로</translation>
    </message>
    <message>
        <source>Number outward from the corner</source>
        <translation>모서리에서 바깥쪽으로 번호 매기기</translation>
    </message>
    <message>
        <source>By tapping</source>
        <translation>눌러서</translation>
    </message>
    <message>
        <source>Number the products as they are tapped</source>
        <translation>누른 순서로 번호 매기기</translation>
    </message>
    <message>
        <source>Place the product earlier</source>
        <translation>제품을 앞으로 이동</translation>
    </message>
    <message>
        <source>Place the product later</source>
        <translation>제품을 뒤로 이동</translation>
    </message>
    <message>
        <source>Propose sides</source>
        <translation>방향 제안</translation>
    </message>
    <message>
        <source>Let products come from their open sides</source>
        <translation>제품을 열린 쪽에서 들여오기</translation>
    </message>
    <message>
        <source>Blocked ways</source>
        <translation>막힌 경로</translation>
    </message>
    <message>
        <source>Show the ways of products that hit others</source>
        <translation>다른 제품에 부딪히는 경로 표시</translation>
    </message>
    <message>
        <source>Back to the product placed before</source>
        <translation>이전에 놓는 제품으로</translation>
    </message>
    <message>
        <source>Product that is being placed</source>
        <translation>놓는 중인 제품</translation>
    </message>
    <message>
        <source>On to the product placed next</source>
        <translation>다음에 놓는 제품으로</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>왼쪽 아래</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>오른쪽 아래</translation>
    </message>
    <message>
        <source>Tap product %1 of %2</source>
        <translation>제품 %1/%2을(를) 누르십시오</translation>
    </message>
    <message>
        <source>Walk through the placing</source>
        <translation>놓는 순서 따라가기</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1/%2: %3</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>PalletFrame</name>
    <message>
        <source>Pallet</source>
        <translation>팔레트</translation>
    </message>
    <message>
        <source>Standard size</source>
        <translation>표준 크기</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>너비</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>무게</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>여백</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>위</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>Separator sheets</source>
        <translation>간지</translation>
    </message>
    <message>
        <source>Sheet length</source>
        <translation>간지 길이</translation>
    </message>
    <message>
        <source>Sheet width</source>
        <translation>간지 너비</translation>
    </message>
    <message>
        <source>Sheet height</source>
        <translation>간지 높이</translation>
    </message>
    <message>
        <source>Sheet weight</source>
        <translation>간지 무게</translation>
    </message>
    <message>
        <source>Place in the cell</source>
        <translation>셀 내 위치</translation>
    </message>
    <message>
        <source>Pallet place</source>
        <translation>팔레트 위치</translation>
    </message>
    <message>
        <source>Post height</source>
        <translation>포스트 높이</translation>
    </message>
    <message>
        <source>Shared tool</source>
        <translation>공용 툴</translation>
    </message>
    <message>
        <source>Use the tool shared by all recipes</source>
        <translation>모든 레시피가 공유하는 툴 사용</translation>
    </message>
    <message>
        <source>Corner posts</source>
        <translation>코너 포스트</translation>
    </message>
    <message>
        <source>The pallet has corner posts</source>
        <translation>팔레트에 코너 포스트가 있음</translation>
    </message>
    <message>
        <source>Shared work object</source>
        <translation>공용 작업 객체</translation>
    </message>
    <message>
        <source>Use the work object shared by all recipes</source>
        <translation>모든 레시피가 공유하는 작업 객체 사용</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>사용자 지정 크기</translation>
    </message>
</context>
<context>
    <name>PalletPlaceFrame</name>
    <message>
        <source>Note</source>
        <translation>참고</translation>
    </message>
    <message>
        <source>Pallet frame</source>
        <translation>팔레트 좌표계</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>보정</translation>
    </message>
    <message>
        <source>Shift along X</source>
        <translation>X 방향 이동</translation>
    </message>
    <message>
        <source>Shift along Y</source>
        <translation>Y 방향 이동</translation>
    </message>
    <message>
        <source>Where the pallet lies</source>
        <translation>팔레트의 위치</translation>
    </message>
    <message>
        <source>Shared pallet frames</source>
        <translation>공용 팔레트 좌표계</translation>
    </message>
    <message>
        <source>Pallets lie from their origin</source>
        <translation>원점에서 본 팔레트</translation>
    </message>
    <message>
        <source>Length of the taught box</source>
        <translation>교시한 상자의 길이</translation>
    </message>
    <message>
        <source>Width of the taught box</source>
        <translation>교시한 상자의 너비</translation>
    </message>
    <message>
        <source>Calibrate by one point</source>
        <translation>한 점으로 보정</translation>
    </message>
    <message>
        <source>Three points</source>
        <translation>세 점</translation>
    </message>
    <message>
        <source>One point</source>
        <translation>한 점</translation>
    </message>
    <message>
        <source>Against the robot&apos;s X</source>
        <translation>로봇 X의 반대 방향</translation>
    </message>
    <message>
        <source>Along the robot&apos;s X</source>
        <translation>로봇 X 방향</translation>
    </message>
    <message>
        <source>Origin</source>
        <translation>원점</translation>
    </message>
    <message>
        <source>Point on X</source>
        <translation>X 위의 점</translation>
    </message>
    <message>
        <source>Point towards Y</source>
        <translation>Y 쪽의 점</translation>
    </message>
    <message>
        <source>Origin, left</source>
        <translation>원점, 왼쪽</translation>
    </message>
    <message>
        <source>Origin, right</source>
        <translation>원점, 오른쪽</translation>
    </message>
    <message>
        <source>Touch the pallet&apos;s origin with the tool: its axes run as the robot&apos;s.</source>
        <translation>툴로 팔레트의 원점을 접촉하십시오. 축은 로봇과 같은 방향입니다.</translation>
    </message>
    <message>
        <source>Touch the points with the tool: the origin, one along the pallet&apos;s length, one across it.</source>
        <translation>툴로 점들을 접촉하십시오. 원점, 팔레트 길이 방향의 한 점, 너비 방향의 한 점.</translation>
    </message>
    <message>
        <source>Not calibrated: the positions count from the robot&apos;s foot.</source>
        <translation>보정되지 않음: 위치는 로봇 받침을 기준으로 합니다.</translation>
    </message>
    <message>
        <source>Origin at X %1, Y %2, Z %3 mm, turned by %4°.</source>
        <translation>원점 X %1, Y %2, Z %3 mm, 회전 %4°.</translation>
    </message>
    <message>
        <source>It comes from the recipe&apos;s tool record.</source>
        <translation>레시피의 툴 데이터에서 가져왔습니다.</translation>
    </message>
    <message>
        <source>The shared work objects are not in use: they have to be calibrated by one point.</source>
        <translation>공용 작업 객체가 사용되지 않습니다. 한 점으로 보정해야 합니다.</translation>
    </message>
    <message>
        <source>Choose how both pallets lie: they have to lie alike.</source>
        <translation>두 팔레트가 놓인 방향을 선택하십시오. 서로 같아야 합니다.</translation>
    </message>
    <message>
        <source>Shared by all recipes on these work objects. Hold a box in the pallet&apos;s inner corner, from which it lies as chosen here, and teach it.</source>
        <translation>이 작업 객체를 쓰는 모든 레시피가 공유합니다. 여기서 선택한 방향의 시작이 되는 팔레트 안쪽 모서리에 상자를 두고 교시하십시오.</translation>
    </message>
</context>
<context>
    <name>Palx</name>
    <message>
        <source>W-Palletizing</source>
        <translation>W-팔레타이징</translation>
    </message>
</context>
<context>
    <name>ParameterSettingsWizard</name>
    <message>
        <source>Product and pallet</source>
        <translation>제품과 팔레트</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>팔레트</translation>
    </message>
</context>
<context>
    <name>PatternListModel</name>
    <message>
        <source>In %1 layers</source>
        <translation>%1개 단에서 사용</translation>
    </message>
</context>
<context>
    <name>PatternNameDialog</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Letters, digits, &quot;_&quot; and &quot;-&quot;; at most 32.</source>
        <translation>영문자, 숫자, &quot;_&quot;, &quot;-&quot;; 최대 32자.</translation>
    </message>
    <message>
        <source>Clone of the present pattern</source>
        <translation>현재 패턴 복제</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Clone of pattern %1</source>
        <translation>패턴 %1 복제</translation>
    </message>
</context>
<context>
    <name>PatternTemplateDialog</name>
    <message>
        <source>Pattern Template</source>
        <translation>패턴 템플릿</translation>
    </message>
    <message>
        <source>Tempalte</source>
        <translation>템플릿</translation>
    </message>
    <message>
        <source>Kind of template</source>
        <translation>템플릿 종류</translation>
    </message>
    <message>
        <source>X Number:</source>
        <translation>X 개수:</translation>
    </message>
    <message>
        <source>Y Number:</source>
        <translation>Y 개수:</translation>
    </message>
    <message>
        <source>Y1 Number:</source>
        <translation>Y1 개수:</translation>
    </message>
    <message>
        <source>Y2 Number:</source>
        <translation>Y2 개수:</translation>
    </message>
    <message>
        <source>X Offset(mm):</source>
        <translation>X 오프셋(mm):</translation>
    </message>
    <message>
        <source>Y Offset(mm):</source>
        <translation>Y 오프셋(mm):</translation>
    </message>
    <message>
        <source>X Space(mm):</source>
        <translation>X 간격(mm):</translation>
    </message>
    <message>
        <source>Y Space(mm):</source>
        <translation>Y 간격(mm):</translation>
    </message>
    <message>
        <source>How the template lays products</source>
        <translation>템플릿의 배치 방식</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Overlap</source>
        <translation>나란히</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>교차</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>맞물림</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>경고</translation>
    </message>
</context>
<context>
    <name>PatternText</name>
    <message>
        <source>Name is empty!</source>
        <translation>이름이 비어 있습니다!</translation>
    </message>
    <message>
        <source>Pattern name length is greater than 32!</source>
        <translation>패턴 이름이 32자를 초과합니다!</translation>
    </message>
    <message>
        <source>Only letters, digits, &quot;_&quot; and &quot;-&quot; are allowed in a pattern&apos;s name.</source>
        <translation>패턴 이름에는 문자, 숫자, &quot;_&quot;와 &quot;-&quot;만 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Name is repeated!</source>
        <translation>이름이 중복됩니다!</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by layer %2.</source>
        <translation>패턴 &quot;%1&quot;은(는) 단 %2에서 사용됩니다.</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by the layers %2.</source>
        <translation>패턴 &quot;%1&quot;은(는) 다음 단에서 사용됩니다: %2.</translation>
    </message>
    <message>
        <source>Pattern &quot;%1&quot; is used by %2 layers: %3, ...</source>
        <translation>패턴 &quot;%1&quot;은(는) %2개 단에서 사용됩니다: %3 ...</translation>
    </message>
</context>
<context>
    <name>PatternsFrame</name>
    <message>
        <source>Pattern</source>
        <translation>패턴</translation>
    </message>
    <message>
        <source>New</source>
        <translation>신규</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Plan of the pattern</source>
        <translation>패턴 평면도</translation>
    </message>
    <message>
        <source>Products of the pattern</source>
        <translation>패턴의 제품</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>방향</translation>
    </message>
    <message>
        <source>x (across)</source>
        <translation>x (가로)</translation>
    </message>
    <message>
        <source>y (along)</source>
        <translation>y (세로)</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>dx</source>
        <translation>dx</translation>
    </message>
    <message>
        <source>dy</source>
        <translation>dy</translation>
    </message>
    <message>
        <source>dz</source>
        <translation>dz</translation>
    </message>
    <message>
        <source>Copy of pattern %1</source>
        <translation>패턴 %1의 복사본</translation>
    </message>
    <message>
        <source>New name for pattern %1</source>
        <translation>패턴 %1의 새 이름</translation>
    </message>
    <message>
        <source>Product %1</source>
        <translation>제품 %1</translation>
    </message>
    <message>
        <source>No product chosen</source>
        <translation>선택한 제품 없음</translation>
    </message>
    <message>
        <source>The recipe was closed.</source>
        <translation>레시피가 닫혔습니다.</translation>
    </message>
    <message>
        <source>Delete pattern</source>
        <translation>패턴 삭제</translation>
    </message>
    <message>
        <source>A pattern holds at most %1 products.</source>
        <translation>패턴에는 제품을 최대 %1개까지 넣을 수 있습니다.</translation>
    </message>
    <message>
        <source>Use size</source>
        <translation>크기 적용</translation>
    </message>
    <message>
        <source>Give every product the size of the recipe&apos;s product</source>
        <translation>모든 제품에 레시피 제품의 크기 적용</translation>
    </message>
    <message>
        <source>Make, rename and delete patterns</source>
        <translation>패턴 만들기, 이름 변경, 삭제</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Tools for editing the plan</source>
        <translation>평면도 편집 도구</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>순서</translation>
    </message>
    <message>
        <source>Order and sides of placing</source>
        <translation>놓는 순서와 방향</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Check of the pattern</source>
        <translation>패턴 확인</translation>
    </message>
    <message>
        <source>What is chosen or wrong on the plan</source>
        <translation>평면도에서 선택되었거나 잘못된 것</translation>
    </message>
    <message>
        <source>Show the whole plan</source>
        <translation>평면도 전체 표시</translation>
    </message>
    <message>
        <source>Figures of the pattern</source>
        <translation>패턴 수치</translation>
    </message>
    <message>
        <source>%1 (in %2 layers)</source>
        <translation>%1 (%2개 단)</translation>
    </message>
    <message>
        <source>1 product</source>
        <translation>제품 1개</translation>
    </message>
    <message>
        <source>%1 products</source>
        <translation>제품 %1개</translation>
    </message>
    <message>
        <source>This recipe has no pattern yet.</source>
        <translation>이 레시피에는 아직 패턴이 없습니다.</translation>
    </message>
    <message>
        <source>%1 products chosen</source>
        <translation>제품 %1개 선택됨</translation>
    </message>
    <message>
        <source>Check %1</source>
        <translation>확인 %1</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>템플릿</translation>
    </message>
    <message>
        <source>Add products by a template</source>
        <translation>템플릿으로 제품 추가</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Fill the pattern by an automatic layout</source>
        <translation>자동 배치로 패턴 채우기</translation>
    </message>
    <message>
        <source>Patterns of the recipe</source>
        <translation>레시피의 패턴</translation>
    </message>
    <message>
        <source>Delete the pattern %1?</source>
        <translation>패턴 %1을(를) 삭제할까요?</translation>
    </message>
</context>
<context>
    <name>PlanarNestingWizard</name>
    <message>
        <source>Patterns</source>
        <translation>패턴</translation>
    </message>
    <message>
        <source>Products in a layer</source>
        <translation>단의 제품</translation>
    </message>
    <message>
        <source>Feeding directions</source>
        <translation>투입 방향</translation>
    </message>
</context>
<context>
    <name>PointGroup</name>
    <message>
        <source>Point</source>
        <translation>포인트</translation>
    </message>
    <message>
        <source>State of the point</source>
        <translation>포인트 상태</translation>
    </message>
    <message>
        <source>Enter the values of the point by hand</source>
        <translation>포인트 값을 직접 입력</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Clear the point</source>
        <translation>포인트 지우기</translation>
    </message>
    <message>
        <source>All zero</source>
        <translation>모두 0</translation>
    </message>
    <message>
        <source>Not taught</source>
        <translation>미교시</translation>
    </message>
    <message>
        <source>Computed</source>
        <translation>계산됨</translation>
    </message>
    <message>
        <source>Taught</source>
        <translation>교시됨</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>수동</translation>
    </message>
    <message>
        <source>Teach</source>
        <translation>교시</translation>
    </message>
    <message>
        <source>Teach the point where the robot stands</source>
        <translation>로봇의 현재 위치를 교시</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>Move the robot to the point</source>
        <translation>로봇을 포인트로 이동</translation>
    </message>
    <message>
        <source>The controller is not connected: where the robot stands is not known.</source>
        <translation>컨트롤러가 연결되지 않아 로봇의 위치를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>The robot is moving. Teach the point when it stands.</source>
        <translation>로봇이 움직이고 있습니다. 멈춘 뒤에 교시하십시오.</translation>
    </message>
    <message>
        <source>The controller does not tell where the robot stands.</source>
        <translation>컨트롤러가 로봇의 위치를 알려 주지 않습니다.</translation>
    </message>
</context>
<context>
    <name>PointTableModel</name>
    <message>
        <source>Enter</source>
        <translation>진입</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>접근</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>놓기</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>집기</translation>
    </message>
    <message>
        <source>Retract</source>
        <translation>후퇴</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>이탈</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>단</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>포인트</translation>
    </message>
    <message>
        <source>X
mm</source>
        <translation>X
mm</translation>
    </message>
    <message>
        <source>Y
mm</source>
        <translation>Y
mm</translation>
    </message>
    <message>
        <source>Z
mm</source>
        <translation>Z
mm</translation>
    </message>
</context>
<context>
    <name>PointText</name>
    <message>
        <source>The place point is not taught.</source>
        <translation>놓기 포인트가 교시되지 않았습니다.</translation>
    </message>
    <message>
        <source>The enter point of the place side is not taught.</source>
        <translation>놓기 측 진입 포인트가 교시되지 않았습니다.</translation>
    </message>
    <message>
        <source>The pallet place is neither left nor right, so all place positions will be 0.</source>
        <translation>팔레트 위치가 왼쪽도 오른쪽도 아니므로 모든 놓기 위치가 0이 됩니다.</translation>
    </message>
    <message>
        <source>The origin point of the shared work object for the left pallet is not taught.</source>
        <translation>왼쪽 팔레트 공용 작업 객체의 원점이 교시되지 않았습니다.</translation>
    </message>
    <message>
        <source>The origin point of the shared work object for the right pallet is not taught.</source>
        <translation>오른쪽 팔레트 공용 작업 객체의 원점이 교시되지 않았습니다.</translation>
    </message>
    <message>
        <source>The corner of the product on the conveyor is not taught.</source>
        <translation>컨베이어 위 제품의 모서리가 교시되지 않았습니다.</translation>
    </message>
    <message>
        <source>The pick point is not taught.</source>
        <translation>집기 포인트가 교시되지 않았습니다.</translation>
    </message>
    <message>
        <source>The enter point of the pick side is not taught.</source>
        <translation>집기 측 진입 포인트가 교시되지 않았습니다.</translation>
    </message>
    <message>
        <source>The shared work objects are not both calibrated by one point, so the place positions lie around the robot&apos;s foot.</source>
        <translation>공유 작업 객체가 모두 1점으로 보정되지 않아 적재 위치가 로봇 받침 주위에 놓입니다.</translation>
    </message>
    <message>
        <source>The pallet&apos;s place is not calibrated, so the place positions lie around the robot&apos;s foot.</source>
        <translation>팔레트 위치가 보정되지 않아 적재 위치가 로봇 받침 주위에 놓입니다.</translation>
    </message>
    <message>
        <source>The shared tool is not measured, so the flange is taken for it.</source>
        <translation>공용 툴이 측정되지 않아 플랜지를 툴로 사용합니다.</translation>
    </message>
    <message>
        <source>The recipe&apos;s tool is not measured, so the flange is taken for it.</source>
        <translation>레시피의 툴이 측정되지 않아 플랜지를 툴로 사용합니다.</translation>
    </message>
    <message>
        <source>The ready height of the place side, %1 mm, is less than the product&apos;s height, %2 mm: what comes straight from above could hit the products beside its place.</source>
        <translation>놓기 쪽 준비 높이 %1 mm이(가) 제품 높이 %2 mm보다 낮아 바로 위에서 내려오는 제품이 옆 제품에 부딪힐 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>PointsFrame</name>
    <message>
        <source>Generate points</source>
        <translation>포인트 생성</translation>
    </message>
    <message>
        <source>State of the points</source>
        <translation>포인트 상태</translation>
    </message>
    <message>
        <source>Layer to show</source>
        <translation>표시할 단</translation>
    </message>
    <message>
        <source>Kind of point to show</source>
        <translation>표시할 포인트 종류</translation>
    </message>
    <message>
        <source>Number of points shown</source>
        <translation>표시된 포인트 수</translation>
    </message>
    <message>
        <source>Copy table</source>
        <translation>표 복사</translation>
    </message>
    <message>
        <source>Copy the table to the clipboard</source>
        <translation>표를 클립보드에 복사</translation>
    </message>
    <message>
        <source>Generated points</source>
        <translation>생성된 포인트</translation>
    </message>
    <message>
        <source>All layers</source>
        <translation>모든 단</translation>
    </message>
    <message>
        <source>Pick side</source>
        <translation>집기 측</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>%1단</translation>
    </message>
    <message>
        <source>All points</source>
        <translation>모든 포인트</translation>
    </message>
    <message>
        <source>Points: %1</source>
        <translation>포인트: %1</translation>
    </message>
    <message>
        <source>No points have been generated yet.</source>
        <translation>아직 생성된 포인트가 없습니다.</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed: generate the points again.</source>
        <translation>레시피 또는 공용 설정이 변경되었습니다. 포인트를 다시 생성하십시오.</translation>
    </message>
    <message>
        <source>The points are up to date.</source>
        <translation>포인트가 최신 상태입니다.</translation>
    </message>
    <message>
        <source>Points copied: %1</source>
        <translation>복사한 포인트: %1</translation>
    </message>
    <message>
        <source>Move to</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>Move the robot to the chosen point</source>
        <translation>선택한 포인트로 로봇 이동</translation>
    </message>
</context>
<context>
    <name>ProblemList</name>
    <message>
        <source>Result of the check</source>
        <translation>확인 결과</translation>
    </message>
    <message>
        <source>What is wrong with the pattern</source>
        <translation>패턴의 문제</translation>
    </message>
    <message>
        <source>Nothing is wrong with the pattern.</source>
        <translation>패턴에 문제가 없습니다.</translation>
    </message>
    <message>
        <source>One thing is wrong. Touch it to choose its products.</source>
        <translation>문제가 1개 있습니다. 터치하면 제품이 선택됩니다.</translation>
    </message>
    <message>
        <source>%1 things are wrong. Touch one to choose its products.</source>
        <translation>문제가 %1개 있습니다. 하나를 터치하면 제품이 선택됩니다.</translation>
    </message>
</context>
<context>
    <name>ProblemText</name>
    <message>
        <source>Products %1 and %2 overlap by %3 mm.</source>
        <translation>제품 %1과(와) %2이(가) %3 mm 겹칩니다.</translation>
    </message>
    <message>
        <source>Product %1 reaches %2 mm over the pallet.</source>
        <translation>제품 %1이(가) 팔레트 밖으로 %2 mm 나옵니다.</translation>
    </message>
    <message>
        <source>%1 of %2 products have another size than the recipe&apos;s product.</source>
        <translation>제품 %2개 중 %1개의 크기가 레시피의 제품과 다릅니다.</translation>
    </message>
    <message>
        <source>Product %1 was stored with a value that cannot be used.</source>
        <translation>제품 %1에 사용할 수 없는 값이 저장되어 있습니다.</translation>
    </message>
    <message>
        <source>Products %1 and %2 lie in the same place.</source>
        <translation>제품 %1과(와) %2이(가) 같은 자리에 있습니다.</translation>
    </message>
    <message>
        <source>Product %1 hits product %2 on its way in, by %3 mm.</source>
        <translation>제품 %1이(가) 들어오는 길에 제품 %2에 %3 mm 부딪힙니다.</translation>
    </message>
    <message>
        <source>Products %1 and %2 are %3 mm apart, less than %4 mm.</source>
        <translation>제품 %1과(와) %2의 간격이 %3 mm로 %4 mm보다 작습니다.</translation>
    </message>
    <message>
        <source>Product %1 has the unknown direction &quot;%2&quot;: it comes from above.</source>
        <translation>제품 %1의 방향 &quot;%2&quot;을(를) 알 수 없어 위에서 들어옵니다.</translation>
    </message>
    <message>
        <source>The numbers of %1 products do not follow the order of placing.</source>
        <translation>제품 %1개의 번호가 놓는 순서와 다릅니다.</translation>
    </message>
    <message>
        <source>Product %1 reaches %2 mm into the margin.</source>
        <translation>제품 %1이(가) 여백을 %2 mm 침범합니다.</translation>
    </message>
    <message>
        <source>There are %1 products; the controller takes at most %2 in a pattern.</source>
        <translation>제품이 %1개입니다. 컨트롤러는 패턴마다 최대 %2개를 받습니다.</translation>
    </message>
    <message>
        <source>Only the first %1 products are shown.</source>
        <translation>처음 %1개의 제품만 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>ProductFrame</name>
    <message>
        <source>Size and weight</source>
        <translation>크기와 무게</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>너비</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>무게</translation>
    </message>
    <message>
        <source>Placing</source>
        <translation>배치</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>방향</translation>
    </message>
    <message>
        <source>Orientation code</source>
        <translation>자세 코드</translation>
    </message>
    <message>
        <source>Along (dx)</source>
        <translation>세로 (dx)</translation>
    </message>
    <message>
        <source>Across (dy)</source>
        <translation>가로 (dy)</translation>
    </message>
    <message>
        <source>Lift (dz)</source>
        <translation>상승 (dz)</translation>
    </message>
    <message>
        <source>Picture of the recipe</source>
        <translation>레시피 그림</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>레시피</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>레시피 합계</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
</context>
<context>
    <name>ProgramTableModel</name>
    <message>
        <source>Task</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
</context>
<context>
    <name>ProjectManager</name>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Back to the page before</source>
        <translation>이전 페이지로</translation>
    </message>
    <message>
        <source>Project Manager</source>
        <translation>프로젝트 관리</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>State of the project</source>
        <translation>프로젝트 상태</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>진행 중인 작업</translation>
    </message>
    <message>
        <source>Name of the project</source>
        <translation>프로젝트 이름</translation>
    </message>
    <message>
        <source>Clone</source>
        <translation>복제</translation>
    </message>
    <message>
        <source>Copy the chosen project&apos;s files</source>
        <translation>선택한 프로젝트의 파일 복사</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>매개변수</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>변수</translation>
    </message>
    <message>
        <source>Tasks and their program files</source>
        <translation>작업과 프로그램 파일</translation>
    </message>
    <message>
        <source>Shown program file</source>
        <translation>표시된 프로그램 파일</translation>
    </message>
    <message>
        <source>Program text</source>
        <translation>프로그램 본문</translation>
    </message>
    <message>
        <source>Whose variables are shown</source>
        <translation>변수가 표시된 대상</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>Add a project</source>
        <translation>프로젝트 추가</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Edit the project</source>
        <translation>프로젝트 편집</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Remove the project</source>
        <translation>프로젝트 삭제</translation>
    </message>
    <message>
        <source>Set Default</source>
        <translation>기본값으로</translation>
    </message>
    <message>
        <source>Load the project when the controller starts</source>
        <translation>컨트롤러 시작 시 프로젝트 불러오기</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>다시 불러오기</translation>
    </message>
    <message>
        <source>Switch to the project</source>
        <translation>프로젝트로 전환</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>새 프로젝트</translation>
    </message>
    <message>
        <source>Edit Project</source>
        <translation>프로젝트 편집</translation>
    </message>
    <message>
        <source>Preparing data...</source>
        <translation>데이터 준비 중...</translation>
    </message>
    <message>
        <source>Connect the controller first</source>
        <translation>먼저 컨트롤러를 연결하십시오</translation>
    </message>
    <message>
        <source>No project is current.</source>
        <translation>현재 프로젝트가 없습니다.</translation>
    </message>
    <message>
        <source>Variables of the current project: %1</source>
        <translation>현재 프로젝트의 변수: %1</translation>
    </message>
    <message>
        <source>Current, loaded at start-up</source>
        <translation>현재, 시작 시 불러옴</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>현재</translation>
    </message>
    <message>
        <source>Loaded at start-up</source>
        <translation>시작 시 불러옴</translation>
    </message>
    <message>
        <source>Not current</source>
        <translation>현재 아님</translation>
    </message>
    <message>
        <source>Touch a program file to look at it.</source>
        <translation>프로그램 파일을 누르면 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>: the file cannot be read</source>
        <translation>: 파일을 읽을 수 없음</translation>
    </message>
    <message>
        <source>: empty</source>
        <translation>: 비어 있음</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Import projects</source>
        <translation>프로젝트 가져오기</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>Export projects</source>
        <translation>프로젝트 내보내기</translation>
    </message>
</context>
<context>
    <name>ProjectParamSetupPage</name>
    <message>
        <source>Scheme layout</source>
        <translation>구성</translation>
    </message>
    <message>
        <source>Single Line - Left</source>
        <translation>단일 라인 - 왼쪽</translation>
    </message>
    <message>
        <source>Single Line - Right</source>
        <translation>단일 라인 - 오른쪽</translation>
    </message>
    <message>
        <source>Single Line - Both</source>
        <translation>단일 라인 - 양쪽</translation>
    </message>
    <message>
        <source>Double Line - Both</source>
        <translation>이중 라인 - 양쪽</translation>
    </message>
    <message>
        <source>Palletizing type</source>
        <translation>팔레타이징 종류</translation>
    </message>
    <message>
        <source>Palletizing</source>
        <translation>팔레타이징</translation>
    </message>
    <message>
        <source>Depalletizing</source>
        <translation>디팔레타이징</translation>
    </message>
    <message>
        <source>Type of sucker</source>
        <translation>흡착 패드 종류</translation>
    </message>
    <message>
        <source>Single Suction</source>
        <translation>단일 흡착</translation>
    </message>
    <message>
        <source>Double Suction</source>
        <translation>이중 흡착</translation>
    </message>
    <message>
        <source>Lift platform</source>
        <translation>승강 칼럼</translation>
    </message>
    <message>
        <source>With Bollard</source>
        <translation>칼럼 있음</translation>
    </message>
    <message>
        <source>Without Bollard</source>
        <translation>칼럼 없음</translation>
    </message>
    <message>
        <source>Other accessories</source>
        <translation>기타 부속품</translation>
    </message>
    <message>
        <source>With Clapboard</source>
        <translation>간지 있음</translation>
    </message>
    <message>
        <source>Without Clapboard</source>
        <translation>간지 없음</translation>
    </message>
    <message>
        <source>Left Recipe</source>
        <translation>왼쪽 레시피</translation>
    </message>
    <message>
        <source>Right Recipe</source>
        <translation>오른쪽 레시피</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>비어 있음</translation>
    </message>
    <message>
        <source>The scheme layout and the bollard, which is the lift column, choose the robot programs. The other choices are kept with the project.</source>
        <translation>로봇 프로그램은 구성과 칼럼으로 정해집니다. 다른 선택은 프로젝트와 함께 보관됩니다.</translation>
    </message>
    <message>
        <source>There are no robot programs for this layout: they stay empty, and the robot does not move.</source>
        <translation>이 구성에는 로봇 프로그램이 없습니다. 비어 있어 로봇이 움직이지 않습니다.</translation>
    </message>
</context>
<context>
    <name>RecipeEditing</name>
    <message>
        <source>The margins left no room for a product and were set to 0.</source>
        <translation>여백 때문에 제품이 들어가지 않아 0으로 설정했습니다.</translation>
    </message>
</context>
<context>
    <name>RecipeFates</name>
    <message>
        <source>pick points</source>
        <translation>집기 포인트</translation>
    </message>
    <message>
        <source>corner posts</source>
        <translation>코너 포스트</translation>
    </message>
    <message>
        <source>pallet side</source>
        <translation>팔레트 쪽</translation>
    </message>
    <message>
        <source>choice of tool</source>
        <translation>툴 선택</translation>
    </message>
    <message>
        <source>choice of work object</source>
        <translation>작업 객체 선택</translation>
    </message>
    <message>
        <source>automatic layout</source>
        <translation>자동 배치</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>여백</translation>
    </message>
    <message>
        <source>Is left out</source>
        <translation>제외</translation>
    </message>
    <message>
        <source>Skipped: row %1 has the name</source>
        <translation>건너뜀: %1행과 이름 같음</translation>
    </message>
    <message>
        <source>Skipped: the name is taken</source>
        <translation>건너뜀: 이름 있음</translation>
    </message>
    <message>
        <source>Skipped: row %1 replaces it</source>
        <translation>건너뜀: %1행이 대신함</translation>
    </message>
    <message>
        <source>New recipe</source>
        <translation>새 레시피</translation>
    </message>
    <message>
        <source>Row %1 has the name: becomes &quot;%2&quot;</source>
        <translation>%1행과 이름 같음: &quot;%2&quot;(으)로</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;</source>
        <translation>&quot;%1&quot;(으)로 바뀜</translation>
    </message>
    <message>
        <source>Replaces no. %1 and stands at no. %2</source>
        <translation>%1번을 바꾸고 %2번이 됨</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(이름 없음)</translation>
    </message>
    <message>
        <source>Usual values for: %1</source>
        <translation>기본값 사용: %1</translation>
    </message>
</context>
<context>
    <name>RecipeFrame</name>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n개 더</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RecipeMatchModel</name>
    <message>
        <source>No.</source>
        <translation>번호</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>레시피</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>패널</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>컨트롤러</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>%1 places, %2 layers</source>
        <translation>자리 %1개, 단 %2개</translation>
    </message>
    <message>
        <source>The same</source>
        <translation>같음</translation>
    </message>
    <message>
        <source>At place %1</source>
        <translation>%1번째 위치</translation>
    </message>
    <message>
        <source>Other points</source>
        <translation>포인트 다름</translation>
    </message>
    <message>
        <source>Missing there</source>
        <translation>컨트롤러에 없음</translation>
    </message>
    <message>
        <source>Only there</source>
        <translation>컨트롤러에만 있음</translation>
    </message>
</context>
<context>
    <name>RecipeText</name>
    <message>
        <source>The name is empty.</source>
        <translation>이름이 비어 있습니다.</translation>
    </message>
    <message>
        <source>The name begins or ends with a blank.</source>
        <translation>이름이 공백으로 시작하거나 끝납니다.</translation>
    </message>
    <message>
        <source>The name has %1 characters; at most %2 are allowed.</source>
        <translation>이름이 %1자입니다. 최대 %2자까지 허용됩니다.</translation>
    </message>
    <message>
        <source>The name holds a line break or another control character.</source>
        <translation>이름에 줄 바꿈이나 다른 제어 문자가 있습니다.</translation>
    </message>
    <message>
        <source>There is a recipe &quot;%1&quot; already.</source>
        <translation>레시피 &quot;%1&quot;이(가) 이미 있습니다.</translation>
    </message>
</context>
<context>
    <name>RecipeTexts</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Boxes: %1, layers: %2
Product: %3
Pallet: %4</source>
        <translation>박스: %1, 단: %2
제품: %3
팔레트: %4</translation>
    </message>
    <message>
        <source>Boxes: %1, layers: %2</source>
        <translation>박스: %1, 단: %2</translation>
    </message>
    <message>
        <source>Separator sheets: %1</source>
        <translation>간지: %1</translation>
    </message>
    <message>
        <source>Height: %1 mm (load %2 mm)</source>
        <translation>높이: %1 mm (적재물 %2 mm)</translation>
    </message>
    <message>
        <source>Weight: %1 kg (load %2 kg)</source>
        <translation>무게: %1 kg (적재물 %2 kg)</translation>
    </message>
</context>
<context>
    <name>RecipeWizard</name>
    <message>
        <source>Recipe</source>
        <translation>레시피</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>페이지</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Undo the last edit</source>
        <translation>마지막 편집 실행 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>Redo the undone edit</source>
        <translation>취소한 편집 다시 실행</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Cancel and take the edits back</source>
        <translation>취소하고 편집 되돌리기</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Back to the page before</source>
        <translation>이전 페이지로</translation>
    </message>
    <message>
        <source>Take back all edits?</source>
        <translation>모든 편집을 되돌리시겠습니까?</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1/%2: %3</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
</context>
<context>
    <name>RowText</name>
    <message>
        <source>%1 x %2 x %3 mm</source>
        <translation>%1 x %2 x %3 mm</translation>
    </message>
    <message>
        <source>%1 kg</source>
        <translation>%1 kg</translation>
    </message>
    <message>
        <source>Separator sheet</source>
        <translation>간지</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>비어 있음</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>%1, %2 of them shown</source>
        <translation>%1, 그중 %2개 표시</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>%1/%2 by %3 mm</source>
        <translation>%1/%2 %3 mm</translation>
    </message>
    <message>
        <source>Overlap: %1 and %2 more</source>
        <translation>겹침: %1 외 %2건</translation>
    </message>
    <message>
        <source>Overlap: %1</source>
        <translation>겹침: %1</translation>
    </message>
    <message>
        <source>%1 %2 mm</source>
        <translation>%1 %2 mm</translation>
    </message>
    <message>
        <source>top</source>
        <translation>위</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Over the pallet: %1</source>
        <translation>팔레트 밖: %1</translation>
    </message>
    <message>
        <source>Products with missing or unreadable values: %1</source>
        <translation>값이 없거나 읽을 수 없는 제품: %1</translation>
    </message>
    <message>
        <source>Products with impossible sizes or positions: %1</source>
        <translation>크기나 위치가 불가능한 제품: %1</translation>
    </message>
    <message>
        <source>Products with an unknown direction: %1</source>
        <translation>방향을 알 수 없는 제품: %1</translation>
    </message>
    <message>
        <source>Products whose number is not their place in the order: %1</source>
        <translation>번호가 순서와 다른 제품: %1</translation>
    </message>
    <message>
        <source>The product&apos;s size is not valid</source>
        <translation>제품 크기가 유효하지 않습니다</translation>
    </message>
    <message>
        <source>The pallet&apos;s size is not valid</source>
        <translation>팔레트 크기가 유효하지 않습니다</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>레시피</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>단</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>패턴</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>팔레트</translation>
    </message>
    <message>
        <source>Load of the layer</source>
        <translation>단 적재 크기</translation>
    </message>
    <message>
        <source>Height over the deck</source>
        <translation>상판 위 높이</translation>
    </message>
    <message>
        <source>%1 to %2 mm</source>
        <translation>%1 ~ %2 mm</translation>
    </message>
    <message>
        <source>Layers of products</source>
        <translation>제품 단 수</translation>
    </message>
    <message>
        <source>Separator sheets</source>
        <translation>간지</translation>
    </message>
    <message>
        <source>Height with the pallet</source>
        <translation>팔레트 포함 높이</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Weight with the pallet</source>
        <translation>팔레트 포함 무게</translation>
    </message>
</context>
<context>
    <name>RunFrame</name>
    <message>
        <source>Why no side is shown</source>
        <translation>쪽이 표시되지 않는 이유</translation>
    </message>
    <message>
        <source>Make a project for these recipes</source>
        <translation>이 레시피로 프로젝트 만들기</translation>
    </message>
    <message>
        <source>There is no connection to the controller.</source>
        <translation>컨트롤러에 연결되지 않았습니다.</translation>
    </message>
    <message>
        <source>There are no recipes yet. Make one on the page &quot;Recipes&quot;.</source>
        <translation>레시피가 아직 없습니다. &quot;레시피&quot; 페이지에서 만드십시오.</translation>
    </message>
    <message>
        <source>No robot project is in use. Make one here, or choose one on the page &quot;Projects&quot;.</source>
        <translation>사용 중인 프로젝트가 없습니다. 여기서 만들거나 &quot;프로젝트&quot; 페이지에서 고르십시오.</translation>
    </message>
    <message>
        <source>Waiting for the controller.</source>
        <translation>컨트롤러를 기다리는 중입니다.</translation>
    </message>
    <message>
        <source>The controller did not take it: %1</source>
        <translation>컨트롤러가 받지 않았습니다: %1</translation>
    </message>
    <message>
        <source>The controller holds the recipe &quot;%1&quot; otherwise. Send the recipes first.</source>
        <translation>컨트롤러의 레시피 &quot;%1&quot;이(가) 다릅니다. 먼저 레시피를 보내십시오.</translation>
    </message>
    <message>
        <source>Start the left side at</source>
        <translation>왼쪽 시작 위치</translation>
    </message>
    <message>
        <source>Start the right side at</source>
        <translation>오른쪽 시작 위치</translation>
    </message>
    <message>
        <source>Recipe &quot;%1&quot;</source>
        <translation>레시피 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The left side broke off</source>
        <translation>왼쪽이 중단되었습니다</translation>
    </message>
    <message>
        <source>The right side broke off</source>
        <translation>오른쪽이 중단되었습니다</translation>
    </message>
    <message>
        <source>Clear the gripper, look at the pallet, and confirm the box to go on with. It is proposed by the counters and by what lies there.</source>
        <translation>그리퍼를 비우고 팔레트를 확인한 뒤 이어 갈 박스를 확인하십시오. 카운터와 실제 적재에 따라 제안합니다.</translation>
    </message>
    <message>
        <source>Set pallets and cycle time of the left side to 0? Layer and piece stay as they are.</source>
        <translation>왼쪽의 팔레트 수와 사이클 시간을 0으로 할까요? 단과 개수는 그대로입니다.</translation>
    </message>
    <message>
        <source>Set pallets and cycle time of the right side to 0? Layer and piece stay as they are.</source>
        <translation>오른쪽의 팔레트 수와 사이클 시간을 0으로 할까요? 단과 개수는 그대로입니다.</translation>
    </message>
    <message>
        <source>Reset counters</source>
        <translation>카운터 초기화</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>여기서 시작</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>RunSideCard</name>
    <message>
        <source>State of the side</source>
        <translation>쪽의 상태</translation>
    </message>
    <message>
        <source>Recipe of the side</source>
        <translation>쪽의 레시피</translation>
    </message>
    <message>
        <source>What lies on the pallet</source>
        <translation>팔레트 위의 적재물</translation>
    </message>
    <message>
        <source>Boxes</source>
        <translation>박스</translation>
    </message>
    <message>
        <source>Boxes on the pallet</source>
        <translation>팔레트 위 박스 수</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>단</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>개</translation>
    </message>
    <message>
        <source>Piece of the layer</source>
        <translation>단 안의 번호</translation>
    </message>
    <message>
        <source>Pallets</source>
        <translation>팔레트</translation>
    </message>
    <message>
        <source>Finished pallets</source>
        <translation>완성 팔레트</translation>
    </message>
    <message>
        <source>Cycle time</source>
        <translation>사이클 시간</translation>
    </message>
    <message>
        <source>Per hour</source>
        <translation>시간당</translation>
    </message>
    <message>
        <source>Boxes per hour</source>
        <translation>시간당 박스 수</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>켜기</translation>
    </message>
    <message>
        <source>Enable or disable the side</source>
        <translation>쪽 켜기 또는 끄기</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>시작 위치</translation>
    </message>
    <message>
        <source>Start at a layer and piece</source>
        <translation>단과 개수에서 시작</translation>
    </message>
    <message>
        <source>Reset the counters</source>
        <translation>카운터 초기화</translation>
    </message>
    <message>
        <source>No controller</source>
        <translation>컨트롤러 없음</translation>
    </message>
    <message>
        <source>Not in this project</source>
        <translation>이 프로젝트에 없음</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>고장</translation>
    </message>
    <message>
        <source>Broken off: confirm layer and piece</source>
        <translation>중단됨: 단과 개수 확인</translation>
    </message>
    <message>
        <source>Pallet full: exchange and confirm it</source>
        <translation>가득 참: 교체 후 확인</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Enabled, no program runs</source>
        <translation>켜짐, 프로그램 정지</translation>
    </message>
    <message>
        <source>Robot is moved by hand</source>
        <translation>로봇 수동 이동 중</translation>
    </message>
    <message>
        <source>Stacking</source>
        <translation>적재 중</translation>
    </message>
    <message>
        <source>Enabled, waits for its turn</source>
        <translation>켜짐, 차례 대기</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>비어 있음</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>끄기</translation>
    </message>
</context>
<context>
    <name>SeriesText</name>
    <message>
        <source>There is nothing to lay.</source>
        <translation>놓을 것이 없습니다.</translation>
    </message>
    <message>
        <source>This recipe has no pattern &quot;%1&quot;.</source>
        <translation>이 레시피에 패턴 &quot;%1&quot;이(가) 없습니다.</translation>
    </message>
    <message>
        <source>That makes %1 layers; a recipe holds at most %2.</source>
        <translation>%1개 단이 됩니다. 레시피는 최대 %2개입니다.</translation>
    </message>
</context>
<context>
    <name>StackFrame</name>
    <message>
        <source>Layer of the plan</source>
        <translation>평면도의 단</translation>
    </message>
    <message>
        <source>Plan of the layer</source>
        <translation>단의 평면도</translation>
    </message>
    <message>
        <source>What is wrong with the layers</source>
        <translation>단의 문제</translation>
    </message>
    <message>
        <source>Totals of the recipe</source>
        <translation>레시피 합계</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>%1단</translation>
    </message>
</context>
<context>
    <name>StackHomePage</name>
    <message>
        <source>Recipes</source>
        <translation>레시피</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Search recipes</source>
        <translation>레시피 검색</translation>
    </message>
    <message>
        <source>Name of the recipe</source>
        <translation>레시피 이름</translation>
    </message>
    <message>
        <source>Description of the recipe</source>
        <translation>레시피 설명</translation>
    </message>
    <message>
        <source>Picture of the recipe</source>
        <translation>레시피 그림</translation>
    </message>
    <message>
        <source>Summary of the recipe</source>
        <translation>레시피 요약</translation>
    </message>
    <message>
        <source>Layers of the recipe</source>
        <translation>레시피의 단</translation>
    </message>
    <message>
        <source>New</source>
        <translation>새로 만들기</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 변경</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>There are no recipes yet. Touch &quot;New&quot; to make one.</source>
        <translation>아직 레시피가 없습니다. &quot;새로 만들기&quot;를 눌러 만드십시오.</translation>
    </message>
    <message>
        <source>No recipe is called or described so.</source>
        <translation>해당 이름이나 설명의 레시피가 없습니다.</translation>
    </message>
    <message>
        <source>New recipe</source>
        <translation>새 레시피</translation>
    </message>
    <message>
        <source>Recipe %1</source>
        <translation>레시피 %1</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>%1의 복사본</translation>
    </message>
    <message>
        <source>New name for %1</source>
        <translation>%1의 새 이름</translation>
    </message>
    <message>
        <source>Delete recipe</source>
        <translation>레시피 삭제</translation>
    </message>
    <message>
        <source>Delete the recipe &quot;%1&quot;?</source>
        <translation>레시피 &quot;%1&quot;을(를) 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>The recipe &quot;%1&quot; was deleted.</source>
        <translation>레시피 &quot;%1&quot;을(를) 삭제했습니다.</translation>
    </message>
    <message>
        <source>The recipe is back as &quot;%1&quot;; its name was taken.</source>
        <translation>원래 이름이 사용 중이어서 레시피를 &quot;%1&quot;(으)로 되돌렸습니다.</translation>
    </message>
    <message>
        <source>The recipe cannot be made: the list of recipes is missing.</source>
        <translation>레시피를 만들 수 없습니다: 레시피 목록이 없습니다.</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>프로젝트</translation>
    </message>
    <message>
        <source>Robot projects</source>
        <translation>로봇 프로젝트</translation>
    </message>
    <message>
        <source>Recipes on the controller</source>
        <translation>컨트롤러의 레시피</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Import recipes</source>
        <translation>레시피 가져오기</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>Export recipes</source>
        <translation>레시피 내보내기</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed: generate the points again.</source>
        <translation>레시피 또는 공용 설정이 변경되었습니다. 포인트를 다시 생성하십시오.</translation>
    </message>
</context>
<context>
    <name>StackPanel</name>
    <message>
        <source>The stack from above a corner; drag to turn it</source>
        <translation>모서리 위에서 본 적재; 끌어서 돌립니다</translation>
    </message>
    <message>
        <source>Turn the stack anticlockwise</source>
        <translation>적재를 반시계 방향으로 회전</translation>
    </message>
    <message>
        <source>Turn the stack clockwise</source>
        <translation>적재를 시계 방향으로 회전</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>What is laid</source>
        <translation>놓인 것</translation>
    </message>
    <message>
        <source>Take the last layer off</source>
        <translation>마지막 단 내리기</translation>
    </message>
    <message>
        <source>Take the last box off</source>
        <translation>마지막 박스 내리기</translation>
    </message>
    <message>
        <source>How much is laid</source>
        <translation>놓인 양</translation>
    </message>
    <message>
        <source>Lay the next box</source>
        <translation>다음 박스 놓기</translation>
    </message>
    <message>
        <source>Lay the next layer</source>
        <translation>다음 단 놓기</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>%1: layer %2, sheet</source>
        <translation>%1: %2단, 간지</translation>
    </message>
    <message>
        <source>%1: layer %2, box %3</source>
        <translation>%1: %2단, 박스 %3</translation>
    </message>
</context>
<context>
    <name>StackPatternScene</name>
    <message>
        <source>Separator sheet, its size is not set</source>
        <translation>간지, 크기가 설정되지 않음</translation>
    </message>
    <message>
        <source>Separator sheet %1 x %2 x %3 mm</source>
        <translation>간지 %1 x %2 x %3 mm</translation>
    </message>
    <message>
        <source>This recipe has no layers</source>
        <translation>이 레시피에는 단이 없습니다</translation>
    </message>
    <message>
        <source>There is no layer %1; the recipe has %2</source>
        <translation>%1단이 없습니다. 레시피는 %2단입니다</translation>
    </message>
    <message>
        <source>The recipe has no pattern &quot;%1&quot;</source>
        <translation>레시피에 패턴 &quot;%1&quot;이(가) 없습니다</translation>
    </message>
    <message>
        <source>Empty layer: it is left out</source>
        <translation>빈 단: 건너뜁니다</translation>
    </message>
    <message>
        <source>No pattern is chosen for this layer: the stack ends below it</source>
        <translation>이 단에 패턴이 선택되지 않았습니다. 적재는 그 아래에서 끝납니다</translation>
    </message>
    <message>
        <source>Not placed: the stack ends at a layer below</source>
        <translation>놓지 않음: 적재가 아래 단에서 끝납니다</translation>
    </message>
    <message>
        <source>The pattern &quot;%1&quot; is empty</source>
        <translation>패턴 &quot;%1&quot;이(가) 비어 있습니다</translation>
    </message>
</context>
<context>
    <name>StackSetupPage</name>
    <message>
        <source>Recipes</source>
        <translation>레시피</translation>
    </message>
    <message>
        <source>Back to the recipes</source>
        <translation>레시피로 돌아가기</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>레시피</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Undo the last edit</source>
        <translation>마지막 편집 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>Redo the undone edit</source>
        <translation>취소한 편집 다시 실행</translation>
    </message>
    <message>
        <source>No recipe is open. Choose one above or go to the recipes.</source>
        <translation>열린 레시피가 없습니다. 위에서 선택하거나 레시피 목록으로 이동하십시오.</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>Pallet</source>
        <translation>팔레트</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>패턴</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>단</translation>
    </message>
    <message>
        <source>Waypoints</source>
        <translation>경유점</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>포인트</translation>
    </message>
    <message>
        <source>Wizard</source>
        <translation>마법사</translation>
    </message>
    <message>
        <source>Go through a part of the recipe page by page</source>
        <translation>레시피의 일부를 페이지별로 진행</translation>
    </message>
    <message>
        <source>Feeding directions</source>
        <translation>투입 방향</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>보정</translation>
    </message>
    <message>
        <source>Product and pallet</source>
        <translation>제품과 팔레트</translation>
    </message>
    <message>
        <source>This recipe is being stacked. Changes take effect when you leave the page, on the pallet that was begun, too.</source>
        <translation>이 레시피는 적재 중입니다. 변경은 페이지를 나갈 때 적용되며 이미 시작한 팔레트에도 적용됩니다.</translation>
    </message>
</context>
<context>
    <name>StartDialog</name>
    <message>
        <source>What is asked</source>
        <translation>묻는 내용</translation>
    </message>
    <message>
        <source>What lies on the pallet then</source>
        <translation>그때 팔레트 위의 적재물</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>단</translation>
    </message>
    <message>
        <source>Layer down</source>
        <translation>단 내리기</translation>
    </message>
    <message>
        <source>Layer up</source>
        <translation>단 올리기</translation>
    </message>
    <message>
        <source>Piece</source>
        <translation>개</translation>
    </message>
    <message>
        <source>Piece down</source>
        <translation>개수 줄이기</translation>
    </message>
    <message>
        <source>Piece up</source>
        <translation>개수 늘리기</translation>
    </message>
    <message>
        <source>Products that lie there</source>
        <translation>놓여 있는 제품</translation>
    </message>
    <message>
        <source>The gripper is empty</source>
        <translation>그리퍼가 비어 있음</translation>
    </message>
    <message>
        <source>Why it cannot begin there</source>
        <translation>거기서 시작할 수 없는 이유</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>여기서 시작</translation>
    </message>
    <message>
        <source>Take the product out of the gripper and confirm that it is empty.</source>
        <translation>그리퍼에서 제품을 빼고 비었음을 확인하십시오.</translation>
    </message>
    <message>
        <source>%1 of %2 boxes lie on the pallet.</source>
        <translation>팔레트에 %2개 중 %1개가 놓여 있습니다.</translation>
    </message>
</context>
<context>
    <name>StatusText</name>
    <message>
        <source>Moved by x %1, y %2 mm</source>
        <translation>이동 x %1, y %2 mm</translation>
    </message>
    <message>
        <source>No product chosen</source>
        <translation>선택한 제품 없음</translation>
    </message>
    <message>
        <source>%1 products, %2 x %3 mm</source>
        <translation>제품 %1개, %2 x %3 mm</translation>
    </message>
    <message>
        <source>Product %1: x %2, y %3 mm, %4°</source>
        <translation>제품 %1: x %2, y %3 mm, %4°</translation>
    </message>
    <message>
        <source>(1 of %1) %2</source>
        <translation>(1/%1) %2</translation>
    </message>
</context>
<context>
    <name>TemplateText</name>
    <message>
        <source>Invalid X number</source>
        <translation>X 개수가 올바르지 않습니다</translation>
    </message>
    <message>
        <source>Invalid Y number</source>
        <translation>Y 개수가 올바르지 않습니다</translation>
    </message>
    <message>
        <source>Invalid Y1 or Y2 number</source>
        <translation>Y1 또는 Y2 개수가 올바르지 않습니다</translation>
    </message>
    <message>
        <source>Wobj number is greater than 200</source>
        <translation>제품 수가 200보다 많습니다</translation>
    </message>
    <message>
        <source>Wobj is beyond the pallet&apos;s x edge</source>
        <translation>제품이 팔레트의 x 가장자리를 벗어납니다</translation>
    </message>
    <message>
        <source>Wobj is beyond the pallet&apos;s y edge</source>
        <translation>제품이 팔레트의 y 가장자리를 벗어납니다</translation>
    </message>
</context>
<context>
    <name>TitleText</name>
    <message>
        <source>%1 mm, 1 px = %2 mm</source>
        <translation>%1 mm, 1 px = %2 mm</translation>
    </message>
    <message>
        <source>overlap</source>
        <translation>겹침</translation>
    </message>
    <message>
        <source>over the pallet</source>
        <translation>팔레트 밖</translation>
    </message>
    <message>
        <source>label side</source>
        <translation>라벨 면</translation>
    </message>
    <message>
        <source>approach, to scale</source>
        <translation>접근, 축척대로</translation>
    </message>
    <message>
        <source>layer below</source>
        <translation>아래 단</translation>
    </message>
</context>
<context>
    <name>ToolFrame</name>
    <message>
        <source>Note</source>
        <translation>참고</translation>
    </message>
    <message>
        <source>Tool, seen from the flange</source>
        <translation>플랜지에서 본 툴</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>질량</translation>
    </message>
    <message>
        <source>Centre of gravity X</source>
        <translation>무게중심 X</translation>
    </message>
    <message>
        <source>Centre of gravity Y</source>
        <translation>무게중심 Y</translation>
    </message>
    <message>
        <source>Centre of gravity Z</source>
        <translation>무게중심 Z</translation>
    </message>
    <message>
        <source>Two touches</source>
        <translation>두 번 접촉</translation>
    </message>
    <message>
        <source>Touch a fixed tip with the tool and teach the first touch. Turn the hand about its own axis by 90° or more, touch the tip again and teach the second one.</source>
        <translation>고정된 뾰족한 끝을 툴로 접촉하고 첫 번째를 교시하십시오. 손목을 자체 축으로 90° 이상 돌린 뒤 다시 접촉하고 두 번째를 교시하십시오.</translation>
    </message>
    <message>
        <source>Measure X and Y</source>
        <translation>X와 Y 측정</translation>
    </message>
    <message>
        <source>Touch 1</source>
        <translation>접촉 1</translation>
    </message>
    <message>
        <source>Touch 2</source>
        <translation>접촉 2</translation>
    </message>
    <message>
        <source>The shared tool &quot;%1&quot;, used by all recipes with &quot;Shared tool&quot;.</source>
        <translation>공용 툴 &quot;%1&quot;. &quot;공용 툴&quot;을 쓰는 모든 레시피에 적용됩니다.</translation>
    </message>
    <message>
        <source>The tool of this recipe alone.</source>
        <translation>이 레시피만의 툴.</translation>
    </message>
    <message>
        <source>Teach both touches first.</source>
        <translation>먼저 두 접촉을 모두 교시하십시오.</translation>
    </message>
</context>
<context>
    <name>ToolText</name>
    <message>
        <source>Turn the hand by at least %1 degrees about its own axis between the two touches.</source>
        <translation>두 접촉 사이에 손목을 자체 축으로 %1도 이상 돌리십시오.</translation>
    </message>
    <message>
        <source>The two touches are %1 mm apart in the direction of the hand: the tip moved or was not met.</source>
        <translation>두 접촉이 손목 방향으로 %1 mm 어긋납니다. 끝이 움직였거나 닿지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>TransferText</name>
    <message>
        <source>Import success!</source>
        <translation>가져오기 성공!</translation>
    </message>
    <message>
        <source>%1: the disk did not take everything. Do not pull it out; export again.</source>
        <translation>%1: 디스크에 다 쓰지 못했습니다. 뽑지 말고 다시 내보내십시오.</translation>
    </message>
    <message>
        <source>Export success to %1!</source>
        <translation>%1(으)로 내보내기 성공!</translation>
    </message>
    <message>
        <source>The last import was taken back.</source>
        <translation>마지막 가져오기를 취소했습니다.</translation>
    </message>
</context>
<context>
    <name>VariableTableModel</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>유지</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>no</source>
        <translation>아니요</translation>
    </message>
</context>
<context>
    <name>WaypointAdjustWizard</name>
    <message>
        <source>Waypoints</source>
        <translation>경유점</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>보정</translation>
    </message>
    <message>
        <source>Heights and taught points</source>
        <translation>높이와 교시 포인트</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>포인트</translation>
    </message>
</context>
<context>
    <name>WaypointsFrame</name>
    <message>
        <source>Place side</source>
        <translation>놓기 측</translation>
    </message>
    <message>
        <source>Pick side</source>
        <translation>집기 측</translation>
    </message>
    <message>
        <source>Offsets</source>
        <translation>오프셋</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>참고</translation>
    </message>
    <message>
        <source>Heights over the place point</source>
        <translation>놓기 포인트 위 높이</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비</translation>
    </message>
    <message>
        <source>Approach</source>
        <translation>접근</translation>
    </message>
    <message>
        <source>Retract</source>
        <translation>후퇴</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>이탈</translation>
    </message>
    <message>
        <source>Heights over the pick point</source>
        <translation>집기 포인트 위 높이</translation>
    </message>
    <message>
        <source>Left pallet</source>
        <translation>왼쪽 팔레트</translation>
    </message>
    <message>
        <source>Enter X</source>
        <translation>진입 X</translation>
    </message>
    <message>
        <source>Enter Y</source>
        <translation>진입 Y</translation>
    </message>
    <message>
        <source>Enter height</source>
        <translation>진입 높이</translation>
    </message>
    <message>
        <source>Ready height</source>
        <translation>준비 높이</translation>
    </message>
    <message>
        <source>Approach height</source>
        <translation>접근 높이</translation>
    </message>
    <message>
        <source>Retract height</source>
        <translation>후퇴 높이</translation>
    </message>
    <message>
        <source>Exit height</source>
        <translation>이탈 높이</translation>
    </message>
    <message>
        <source>Right pallet</source>
        <translation>오른쪽 팔레트</translation>
    </message>
    <message>
        <source>Place point</source>
        <translation>놓기 포인트</translation>
    </message>
    <message>
        <source>Enter point</source>
        <translation>진입 포인트</translation>
    </message>
    <message>
        <source>Pick point</source>
        <translation>집기 포인트</translation>
    </message>
    <message>
        <source>The shared work object gives the place points; the heights come from the shared offsets.</source>
        <translation>놓기 포인트는 공용 작업 객체에서, 높이는 공용 오프셋에서 정해집니다.</translation>
    </message>
    <message>
        <source>The first product of the first layer is placed at the place point&apos;s height; positions come from the pattern.</source>
        <translation>첫 단의 첫 제품은 놓기 포인트의 높이에 놓이며, 위치는 패턴에서 정해집니다.</translation>
    </message>
    <message>
        <source>The shared tool gives the pick points and the approach height.</source>
        <translation>집기 포인트와 접근 높이는 공용 툴에서 정해집니다.</translation>
    </message>
    <message>
        <source>The robot picks every product at the pick point.</source>
        <translation>로봇은 모든 제품을 집기 포인트에서 집습니다.</translation>
    </message>
    <message>
        <source>Shared by all recipes on this work object.</source>
        <translation>이 작업 객체를 쓰는 모든 레시피가 공유합니다.</translation>
    </message>
    <message>
        <source>Kept with this recipe for the robot program; the points follow the shared offsets of the work object calibrated by one point.</source>
        <translation>로봇 프로그램용으로 이 레시피에 저장됩니다. 포인트는 한 점으로 보정한 작업 객체의 공용 오프셋을 따릅니다.</translation>
    </message>
</context>
<context>
    <name>XFileModel</name>
    <message>
        <source>Folder %1</source>
        <translation>폴더 %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>변경</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
</context>
<context>
    <name>palx</name>
    <message>
        <source>The way points have regenerated!</source>
        <translation>경유점을 다시 생성했습니다!</translation>
    </message>
    <message>
        <source>it holds something else</source>
        <translation>다른 내용이 들어 있습니다</translation>
    </message>
    <message>
        <source>%1 cannot be read and was kept as %2: %3</source>
        <translation>%1을(를) 읽을 수 없어 %2(으)로 보관했습니다: %3</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>폴더를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. The panel keeps the data; make room or give access, then change them once more</source>
        <translation>%1에 쓸 수 없습니다: %2. 데이터는 패널에 남아 있습니다. 공간을 확보하거나 권한을 준 뒤 다시 변경하십시오</translation>
    </message>
    <message>
        <source>Product para is invalid</source>
        <translation>제품 매개변수가 유효하지 않습니다</translation>
    </message>
    <message>
        <source>Product length is invalid and is setted to default</source>
        <translation>제품 길이가 유효하지 않아 기본값으로 설정했습니다</translation>
    </message>
    <message>
        <source>Product width is invalid and is setted to default</source>
        <translation>제품 너비가 유효하지 않아 기본값으로 설정했습니다</translation>
    </message>
    <message>
        <source>Pallet para is invalid</source>
        <translation>팔레트 매개변수가 유효하지 않습니다</translation>
    </message>
    <message>
        <source>Pallet length is invalid and is setted to default</source>
        <translation>팔레트 길이가 유효하지 않아 기본값으로 설정했습니다</translation>
    </message>
    <message>
        <source>Pallet width is invalid and is setted to default</source>
        <translation>팔레트 너비가 유효하지 않아 기본값으로 설정했습니다</translation>
    </message>
    <message>
        <source>Pallet&apos;length is less than product&apos;length</source>
        <translation>팔레트 길이가 제품 길이보다 짧습니다</translation>
    </message>
    <message>
        <source>Pallet&apos;width is less than product&apos;width</source>
        <translation>팔레트 너비가 제품 너비보다 작습니다</translation>
    </message>
    <message>
        <source>The project has no such variable: %1</source>
        <translation>프로젝트에 그런 변수가 없습니다: %1</translation>
    </message>
</context>
<context>
    <name>palx::ControllerRecipes</name>
    <message>
        <source>Its answer is no list of recipes.</source>
        <translation>응답이 레시피 목록이 아닙니다.</translation>
    </message>
    <message>
        <source>The controller does not tell which recipes it holds: %1</source>
        <translation>컨트롤러가 가진 레시피를 알려 주지 않습니다: %1</translation>
    </message>
</context>
<context>
    <name>palx::HeldMove</name>
    <message>
        <source>The move could not be sent to the controller.</source>
        <translation>이동을 컨트롤러로 보내지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>palx::JogLabels</name>
    <message>
        <source>J1(%1)</source>
        <translation>J1(%1)</translation>
    </message>
    <message>
        <source>J2(%1)</source>
        <translation>J2(%1)</translation>
    </message>
    <message>
        <source>J3(%1)</source>
        <translation>J3(%1)</translation>
    </message>
    <message>
        <source>J4(%1)</source>
        <translation>J4(%1)</translation>
    </message>
    <message>
        <source>J5(%1)</source>
        <translation>J5(%1)</translation>
    </message>
    <message>
        <source>J6(%1)</source>
        <translation>J6(%1)</translation>
    </message>
    <message>
        <source>J7(%1)</source>
        <translation>J7(%1)</translation>
    </message>
    <message>
        <source>A(%1)</source>
        <translation>A(%1)</translation>
    </message>
    <message>
        <source>B(%1)</source>
        <translation>B(%1)</translation>
    </message>
    <message>
        <source>C(%1)</source>
        <translation>C(%1)</translation>
    </message>
</context>
<context>
    <name>palx::MediumChoice</name>
    <message>
        <source>The folder is not there any more.</source>
        <translation>폴더가 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>The disk is write-protected. Nothing can be saved on it.</source>
        <translation>디스크가 쓰기 금지되어 있어 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>This folder is write-protected.</source>
        <translation>이 폴더는 쓰기 금지되어 있습니다.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>디스크가 가득 찼습니다.</translation>
    </message>
    <message>
        <source>There is a folder of that name.</source>
        <translation>같은 이름의 폴더가 있습니다.</translation>
    </message>
    <message>
        <source>There is a file of that name.</source>
        <translation>같은 이름의 파일이 있습니다.</translation>
    </message>
</context>
<context>
    <name>palx::MediumFolder</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>폴더를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Only %1 entries of the folder are shown.</source>
        <translation>폴더의 항목 %1개만 표시합니다.</translation>
    </message>
</context>
<context>
    <name>palx::MediumNames</name>
    <message>
        <source>This disk cannot keep a name with %1.</source>
        <translation>이 디스크에는 %1이(가) 든 이름을 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>This disk cannot keep a name that ends with a dot or a blank.</source>
        <translation>이 디스크에는 점이나 공백으로 끝나는 이름을 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>A PC cannot open a file named %1.</source>
        <translation>PC에서 이름이 %1인 파일을 열 수 없습니다.</translation>
    </message>
    <message>
        <source>The name is too long: %1 of %2 characters.</source>
        <translation>이름이 너무 깁니다: %1 / %2자.</translation>
    </message>
    <message>
        <source>The name is too long: %1 of %2 bytes.</source>
        <translation>이름이 너무 깁니다: %1 / %2바이트.</translation>
    </message>
    <message>
        <source>The file needs a name.</source>
        <translation>파일 이름이 필요합니다.</translation>
    </message>
    <message>
        <source>A name does not begin with a dot: the file would be hidden.</source>
        <translation>이름은 점으로 시작할 수 없습니다: 파일이 숨겨집니다.</translation>
    </message>
    <message>
        <source>The name holds a character that cannot be seen.</source>
        <translation>이름에 보이지 않는 문자가 있습니다.</translation>
    </message>
</context>
<context>
    <name>palx::PatternEditing</name>
    <message>
        <source>Choose at least three products to space them evenly.</source>
        <translation>균등 간격을 위해 제품을 3개 이상 선택하십시오.</translation>
    </message>
    <message>
        <source>A pattern holds at most %1 products; there would be %2.</source>
        <translation>패턴에는 제품이 최대 %1개입니다. %2개가 됩니다.</translation>
    </message>
</context>
<context>
    <name>palx::ProjectText</name>
    <message>
        <source>The robot is not known yet: connect the controller first</source>
        <translation>로봇을 아직 알 수 없습니다. 먼저 컨트롤러를 연결하십시오</translation>
    </message>
    <message>
        <source>Cannot create path: %1</source>
        <translation>경로를 만들 수 없음: %1</translation>
    </message>
    <message>
        <source>Remove folder %1 failed</source>
        <translation>폴더 %1 삭제 실패</translation>
    </message>
    <message>
        <source>Try to add invalid project name</source>
        <translation>프로젝트 이름이 올바르지 않습니다</translation>
    </message>
    <message>
        <source>Project already exists</source>
        <translation>프로젝트가 이미 있습니다</translation>
    </message>
    <message>
        <source>Are you sure to create and switch to new project: %1?</source>
        <translation>새 프로젝트를 만들고 전환하시겠습니까: %1?</translation>
    </message>
    <message>
        <source>Failed to clone project from: %1</source>
        <translation>프로젝트 복제 실패: %1</translation>
    </message>
    <message>
        <source>Cannot rename to an existing project</source>
        <translation>기존 프로젝트의 이름으로 바꿀 수 없습니다</translation>
    </message>
    <message>
        <source>Are you sure to update and switch to project %1?</source>
        <translation>프로젝트 %1을(를) 갱신하고 전환하시겠습니까?</translation>
    </message>
    <message>
        <source>Cannot remove empty project</source>
        <translation>빈 프로젝트는 삭제할 수 없습니다</translation>
    </message>
    <message>
        <source>Are you sure to delete project %1?</source>
        <translation>프로젝트 %1을(를) 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Project %1 removed</source>
        <translation>프로젝트 %1이(가) 삭제되었습니다</translation>
    </message>
    <message>
        <source>Empty project</source>
        <translation>빈 프로젝트</translation>
    </message>
    <message>
        <source>Are you sure to switch to project %1?</source>
        <translation>프로젝트 %1(으)로 전환하시겠습니까?</translation>
    </message>
    <message>
        <source>Reload project %1</source>
        <translation>프로젝트 %1 다시 불러오기</translation>
    </message>
    <message>
        <source>The controller did not take the start-up project</source>
        <translation>컨트롤러가 시작 프로젝트를 받지 않았습니다</translation>
    </message>
    <message>
        <source>Auto load project is set to null!</source>
        <translation>자동 로드 프로젝트를 비웠습니다!</translation>
    </message>
    <message>
        <source>Set %1 to auto load project success!</source>
        <translation>%1을(를) 자동 로드 프로젝트로 설정했습니다!</translation>
    </message>
    <message>
        <source>File %1 already exists!</source>
        <translation>파일 %1이(가) 이미 있습니다!</translation>
    </message>
    <message>
        <source>Cannot create task folder: %1</source>
        <translation>작업 폴더를 만들 수 없음: %1</translation>
    </message>
    <message>
        <source>Cannot read program template: %1</source>
        <translation>프로그램 템플릿을 읽을 수 없음: %1</translation>
    </message>
    <message>
        <source>Cannot write to file: %1</source>
        <translation>파일에 쓸 수 없음: %1</translation>
    </message>
    <message>
        <source>Project Manager</source>
        <translation>프로젝트 관리</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>Main Function</source>
        <translation>주 함수</translation>
    </message>
    <message>
        <source>Back Home</source>
        <translation>홈 복귀</translation>
    </message>
    <message>
        <source>Init</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Left Stack</source>
        <translation>왼쪽 적재</translation>
    </message>
    <message>
        <source>Right Stack</source>
        <translation>오른쪽 적재</translation>
    </message>
    <message>
        <source>Helper Function</source>
        <translation>보조 함수</translation>
    </message>
    <message>
        <source>Conveyor belt inspection</source>
        <translation>컨베이어 점검</translation>
    </message>
    <message>
        <source>Palletizing status detection</source>
        <translation>팔레타이징 상태 감지</translation>
    </message>
    <message>
        <source>Program - Estop - Collision</source>
        <translation>프로그램 - 비상 정지 - 충돌</translation>
    </message>
    <message>
        <source>Anomaly detection</source>
        <translation>이상 감지</translation>
    </message>
    <message>
        <source>Lifting column status detection</source>
        <translation>승강 칼럼 상태 감지</translation>
    </message>
    <message>
        <source>Enable left-side stacking</source>
        <translation>왼쪽 적재 사용</translation>
    </message>
    <message>
        <source>Enable right-side stacking</source>
        <translation>오른쪽 적재 사용</translation>
    </message>
    <message>
        <source>Left side recipe index</source>
        <translation>왼쪽 레시피 번호</translation>
    </message>
    <message>
        <source>Left side pallet count</source>
        <translation>왼쪽 팔레트 수</translation>
    </message>
    <message>
        <source>Left side pallet total count</source>
        <translation>왼쪽 팔레트 총수</translation>
    </message>
    <message>
        <source>Left side current layer</source>
        <translation>왼쪽 현재 단</translation>
    </message>
    <message>
        <source>Left side current layer count</source>
        <translation>왼쪽 현재 단 수</translation>
    </message>
    <message>
        <source>Left side total pallets</source>
        <translation>왼쪽 총 팔레트</translation>
    </message>
    <message>
        <source>Left side total piled count</source>
        <translation>왼쪽 총 적재 수</translation>
    </message>
    <message>
        <source>Left side cycle time</source>
        <translation>왼쪽 사이클 시간</translation>
    </message>
    <message>
        <source>Left side box height</source>
        <translation>왼쪽 박스 높이</translation>
    </message>
    <message>
        <source>Right side recipe index</source>
        <translation>오른쪽 레시피 번호</translation>
    </message>
    <message>
        <source>Right side pallet count</source>
        <translation>오른쪽 팔레트 수</translation>
    </message>
    <message>
        <source>Right side pallet total count</source>
        <translation>오른쪽 팔레트 총수</translation>
    </message>
    <message>
        <source>Right side current layer</source>
        <translation>오른쪽 현재 단</translation>
    </message>
    <message>
        <source>Right side current layer count</source>
        <translation>오른쪽 현재 단 수</translation>
    </message>
    <message>
        <source>Right side total pallets</source>
        <translation>오른쪽 총 팔레트</translation>
    </message>
    <message>
        <source>Right side total piled count</source>
        <translation>오른쪽 총 적재 수</translation>
    </message>
    <message>
        <source>Right side cycle time</source>
        <translation>오른쪽 사이클 시간</translation>
    </message>
    <message>
        <source>Right side box height</source>
        <translation>오른쪽 박스 높이</translation>
    </message>
    <message>
        <source>Left: 1, Right: 2</source>
        <translation>왼쪽: 1, 오른쪽: 2</translation>
    </message>
    <message>
        <source>Left full flag</source>
        <translation>왼쪽 가득 참 플래그</translation>
    </message>
    <message>
        <source>Right full flag</source>
        <translation>오른쪽 가득 참 플래그</translation>
    </message>
    <message>
        <source>Lifting column state, 1 up, 0 down</source>
        <translation>승강 칼럼 상태, 1 위, 0 아래</translation>
    </message>
    <message>
        <source>Using lifting column</source>
        <translation>승강 칼럼 사용</translation>
    </message>
    <message>
        <source>Stacking maximum height</source>
        <translation>최대 적재 높이</translation>
    </message>
    <message>
        <source>Maximum height reachable by the robot in the stacking scene</source>
        <translation>적재 시 로봇이 닿는 최대 높이</translation>
    </message>
    <message>
        <source>Gripping materials</source>
        <translation>자재 파지 중</translation>
    </message>
    <message>
        <source>StandBy Point Margin</source>
        <translation>대기 포인트 여유</translation>
    </message>
    <message>
        <source>Lift height</source>
        <translation>승강 높이</translation>
    </message>
    <message>
        <source>calculate time</source>
        <translation>시간 계산</translation>
    </message>
    <message>
        <source>box height</source>
        <translation>박스 높이</translation>
    </message>
    <message>
        <source>current pos</source>
        <translation>현재 위치</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; %2</source>
        <translation>항목 &quot;%1&quot; %2</translation>
    </message>
    <message>
        <source>is encrypted</source>
        <translation>은(는) 암호화되어 있습니다</translation>
    </message>
    <message>
        <source>is a link</source>
        <translation>은(는) 링크입니다</translation>
    </message>
    <message>
        <source>is neither a file nor a folder</source>
        <translation>은(는) 파일도 폴더도 아닙니다</translation>
    </message>
    <message>
        <source>is called a file and a folder</source>
        <translation>은(는) 파일이자 폴더로 되어 있습니다</translation>
    </message>
    <message>
        <source>is a folder with a content of its own</source>
        <translation>은(는) 자체 내용이 있는 폴더입니다</translation>
    </message>
    <message>
        <source>is packed in a way that is not known here</source>
        <translation>은(는) 알 수 없는 방식으로 압축되어 있습니다</translation>
    </message>
    <message>
        <source>it has %1 entries; no project has more than %2</source>
        <translation>항목이 %1개입니다. 프로젝트는 %2개까지입니다</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>비어 있습니다</translation>
    </message>
    <message>
        <source>its list of entries is damaged</source>
        <translation>항목 목록이 손상되었습니다</translation>
    </message>
    <message>
        <source>has a name that is read in two ways</source>
        <translation>의 이름이 두 가지로 읽힙니다</translation>
    </message>
    <message>
        <source>makes it larger than %1 MB, which no project is</source>
        <translation>때문에 %1 MB를 넘습니다. 그런 프로젝트는 없습니다</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>이(가) 손상되었습니다</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>%1 검사 중</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>it is no whole zip archive</source>
        <translation>온전한 zip 압축 파일이 아닙니다</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>그런 파일이 없습니다</translation>
    </message>
    <message>
        <source>has an absolute name</source>
        <translation>은(는) 절대 경로입니다</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>은(는) 폴더 밖을 가리킵니다</translation>
    </message>
    <message>
        <source>has a backslash in its name</source>
        <translation>의 이름에 역슬래시가 있습니다</translation>
    </message>
    <message>
        <source>has a name that is no path</source>
        <translation>의 이름은 경로가 아닙니다</translation>
    </message>
    <message>
        <source>has a name that is no text in UTF-8</source>
        <translation>의 이름이 UTF-8이 아닙니다</translation>
    </message>
    <message>
        <source>has a control character in its name</source>
        <translation>의 이름에 제어 문자가 있습니다</translation>
    </message>
    <message>
        <source>has too long a name</source>
        <translation>의 이름이 너무 깁니다</translation>
    </message>
    <message>
        <source>needs a folder where there is another entry</source>
        <translation>에 필요한 폴더 자리에 다른 항목이 있습니다</translation>
    </message>
    <message>
        <source>is there twice</source>
        <translation>이(가) 두 번 있습니다</translation>
    </message>
    <message>
        <source>makes the project too large for an archive</source>
        <translation>때문에 프로젝트가 너무 커집니다</translation>
    </message>
    <message>
        <source>there is no folder %1</source>
        <translation>폴더 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>Packing %1</source>
        <translation>%1 압축 중</translation>
    </message>
    <message>
        <source>the archive cannot be written: %1</source>
        <translation>압축 파일을 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>압축 푸는 중</translation>
    </message>
    <message>
        <source>the entry &quot;%1&quot; was not unpacked as it is listed</source>
        <translation>항목 &quot;%1&quot;이(가) 목록과 다르게 풀렸습니다</translation>
    </message>
    <message>
        <source>more was unpacked than it lists</source>
        <translation>목록보다 많이 풀렸습니다</translation>
    </message>
    <message>
        <source>there is no room for %1 MB</source>
        <translation>%1 MB의 공간이 없습니다</translation>
    </message>
    <message>
        <source>it cannot be unpacked to %1</source>
        <translation>%1에 압축을 풀 수 없습니다</translation>
    </message>
    <message>
        <source>The recipes were not taken: %1</source>
        <translation>레시피를 받지 않았습니다: %1</translation>
    </message>
    <message>
        <source>The templates cannot be put back</source>
        <translation>템플릿을 되돌릴 수 없습니다</translation>
    </message>
    <message>
        <source>Writing to the disk</source>
        <translation>디스크에 쓰는 중</translation>
    </message>
    <message>
        <source>there is no such project</source>
        <translation>그런 프로젝트가 없습니다</translation>
    </message>
    <message>
        <source>Export %1 failed!</source>
        <translation>%1 내보내기 실패!</translation>
    </message>
    <message>
        <source>Export Project templates failed!</source>
        <translation>프로젝트 템플릿 내보내기 실패!</translation>
    </message>
    <message>
        <source>Export path can not be empty!</source>
        <translation>내보내기 경로는 비워 둘 수 없습니다!</translation>
    </message>
    <message>
        <source>please select item!</source>
        <translation>항목을 선택하십시오!</translation>
    </message>
    <message>
        <source>Export the project &quot;mod&quot; and the templates one after the other: both become &quot;mod.zip&quot;</source>
        <translation>프로젝트 &quot;mod&quot;와 템플릿은 따로 내보내십시오: 둘 다 &quot;mod.zip&quot;이 됩니다</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <translation>%1에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>Export to %1 success!</source>
        <translation>%1(으)로 내보내기 성공!</translation>
    </message>
    <message>
        <source>the permissions of its files cannot be set</source>
        <translation>파일 권한을 설정할 수 없습니다</translation>
    </message>
    <message>
        <source>there is no room beside the robot&apos;s folder</source>
        <translation>로봇 폴더 옆에 공간이 없습니다</translation>
    </message>
    <message>
        <source>Delete temp file failed!</source>
        <translation>임시 파일 삭제 실패!</translation>
    </message>
    <message>
        <source>%1 cannot be made</source>
        <translation>%1을(를) 만들 수 없습니다</translation>
    </message>
    <message>
        <source>%1 import success!</source>
        <translation>%1 가져오기 성공!</translation>
    </message>
    <message>
        <source>Import %1 failed!</source>
        <translation>%1 가져오기 실패!</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a project</source>
        <translation>&quot;%1&quot;은(는) 프로젝트 이름이 될 수 없습니다</translation>
    </message>
    <message>
        <source>What was imported may be lost when the power fails: %1</source>
        <translation>정전되면 가져온 내용이 사라질 수 있습니다: %1</translation>
    </message>
    <message>
        <source>%1 holds no list of variables</source>
        <translation>%1에 변수 목록이 없습니다</translation>
    </message>
    <message>
        <source>&quot;var.xml&quot;: the value of %1 is none that a project can have</source>
        <translation>&quot;var.xml&quot;: %1의 값은 프로젝트에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>Import project templates failed!</source>
        <translation>프로젝트 템플릿 가져오기 실패!</translation>
    </message>
    <message>
        <source>Reset project templates success!</source>
        <translation>프로젝트 템플릿 초기화 성공!</translation>
    </message>
    <message>
        <source>%1 cannot be replaced</source>
        <translation>%1을(를) 바꿀 수 없습니다</translation>
    </message>
    <message>
        <source>Import project templates success!</source>
        <translation>프로젝트 템플릿 가져오기 성공!</translation>
    </message>
    <message>
        <source>Project templates import success!</source>
        <translation>프로젝트 템플릿 가져오기 완료!</translation>
    </message>
    <message>
        <source>the disk takes its archive and another of this export for one</source>
        <translation>디스크가 이 압축 파일과 이번 내보내기의 다른 압축 파일을 구별하지 못합니다</translation>
    </message>
    <message>
        <source>templates reset</source>
        <translation>템플릿 초기화</translation>
    </message>
    <message>
        <source>program templates</source>
        <translation>프로그램 템플릿</translation>
    </message>
    <message>
        <source>The controller is away: the variables of %1 are looked at when it is back and the project is reloaded</source>
        <translation>컨트롤러가 연결되어 있지 않습니다. 연결이 복구되고 프로젝트를 다시 불러오면 %1의 변수를 확인합니다</translation>
    </message>
    <message>
        <source>it holds no project</source>
        <translation>프로젝트가 들어 있지 않습니다</translation>
    </message>
    <message>
        <source>it holds no program templates</source>
        <translation>프로그램 템플릿이 들어 있지 않습니다</translation>
    </message>
</context>
<context>
    <name>palx::RunText</name>
    <message>
        <source>The recipe has no points yet. Generate them on the page &quot;Points&quot;.</source>
        <translation>레시피에 아직 포인트가 없습니다. &quot;포인트&quot; 페이지에서 만드십시오.</translation>
    </message>
    <message>
        <source>The side is in use. Disable it and let the robot end its pallet, or stop the program.</source>
        <translation>이 쪽은 사용 중입니다. 끄고 로봇이 팔레트를 마치게 하거나 프로그램을 멈추십시오.</translation>
    </message>
    <message>
        <source>There is no recipe for this side.</source>
        <translation>이 쪽의 레시피가 없습니다.</translation>
    </message>
    <message>
        <source>The controller names a recipe that is not here.</source>
        <translation>컨트롤러가 가리키는 레시피가 여기에 없습니다.</translation>
    </message>
    <message>
        <source>The recipe or the shared settings were changed after the points were made. Generate them again on the page &quot;Points&quot;.</source>
        <translation>포인트를 만든 뒤 레시피 또는 공용 설정이 변경되었습니다. &quot;포인트&quot; 페이지에서 다시 생성하십시오.</translation>
    </message>
    <message>
        <source>left pallet</source>
        <translation>왼쪽 팔레트</translation>
    </message>
    <message>
        <source>right pallet</source>
        <translation>오른쪽 팔레트</translation>
    </message>
    <message>
        <source>Stop the program first!</source>
        <translation>먼저 프로그램을 멈추십시오!</translation>
    </message>
    <message>
        <source>There is no recipe for the %1!</source>
        <translation>%1의 레시피가 없습니다!</translation>
    </message>
    <message>
        <source>Clear the gripper first!</source>
        <translation>먼저 그리퍼를 비우십시오!</translation>
    </message>
    <message>
        <source>Products of the recipe &quot;%1&quot; lie on the %2!</source>
        <translation>%2에 레시피 &quot;%1&quot;의 제품이 있습니다!</translation>
    </message>
    <message>
        <source>The %1 is full; replace it first!</source>
        <translation>%1이(가) 가득 찼습니다. 먼저 교체하십시오!</translation>
    </message>
    <message>
        <source>The recipe has layers 1 to %1!</source>
        <translation>레시피의 단은 1~%1입니다!</translation>
    </message>
    <message>
        <source>Layer %1 has pieces 1 to %2!</source>
        <translation>%1단의 개수는 1~%2입니다!</translation>
    </message>
    <message>
        <source>Confirm layer and piece of the %1 first!</source>
        <translation>먼저 %1의 단과 개를 확인하십시오!</translation>
    </message>
    <message>
        <source>The lift column was stopped; go on with the start button of the cell!</source>
        <translation>승강 기둥이 멈췄습니다. 셀의 시작 버튼으로 계속하십시오!</translation>
    </message>
    <message>
        <source>The lift column has no power; press the stop and then the start button of the cell!</source>
        <translation>승강 기둥에 전원이 없습니다. 셀의 정지 버튼, 이어서 시작 버튼을 누르십시오!</translation>
    </message>
    <message>
        <source>The pallet is not as counted; stop the program and confirm the piece!</source>
        <translation>팔레트가 계수와 다릅니다. 프로그램을 멈추고 개를 확인하십시오!</translation>
    </message>
    <message>
        <source>The product was lost; stop the program and confirm the piece!</source>
        <translation>제품을 잃었습니다. 프로그램을 멈추고 개를 확인하십시오!</translation>
    </message>
    <message>
        <source>Recipes would get other places, and the programs that run would take other ones. Stop them first!</source>
        <translation>레시피 순서가 바뀌어 실행 중인 프로그램이 다른 레시피를 쓰게 됩니다. 먼저 멈추십시오!</translation>
    </message>
    <message>
        <source>The %1 is stacked with the recipe &quot;%2&quot;. Disable the side and let its pallet end, or stop the program!</source>
        <translation>%1에서 레시피 &quot;%2&quot;을(를) 사용 중입니다. 그 쪽을 끄고 팔레트를 마치게 하거나 프로그램을 멈추십시오!</translation>
    </message>
    <message>
        <source>The %1 is stacked with the recipe &quot;%2&quot;, which stands behind this one: another would take its place. Disable the side and let its pallet end, or stop the program!</source>
        <translation>%1에서 사용 중인 레시피 &quot;%2&quot;이(가) 이 뒤에 있어 다른 레시피가 그 자리에 옵니다. 그 쪽을 끄고 팔레트를 마치게 하거나 프로그램을 멈추십시오!</translation>
    </message>
    <message>
        <source>The products on the %1 are not of the recipe&apos;s size. Take them off, or change the recipe back!</source>
        <translation>%1의 제품 크기가 레시피와 다릅니다. 제품을 치우거나 레시피를 되돌리십시오!</translation>
    </message>
    <message>
        <source>The recipe lays no products. Put some into the patterns of its layers.</source>
        <translation>레시피에 놓을 제품이 없습니다. 단의 패턴에 제품을 넣으십시오.</translation>
    </message>
</context>
<context>
    <name>xFileDialog</name>
    <message>
        <source>Disk</source>
        <translation>디스크</translation>
    </message>
    <message>
        <source>Used space</source>
        <translation>사용 공간</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>위로</translation>
    </message>
    <message>
        <source>One folder up</source>
        <translation>상위 폴더</translation>
    </message>
    <message>
        <source>Shown folder</source>
        <translation>표시된 폴더</translation>
    </message>
    <message>
        <source>Kind of the files</source>
        <translation>파일 종류</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>새 폴더</translation>
    </message>
    <message>
        <source>Files and folders</source>
        <translation>파일과 폴더</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Name of the file</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Plug in a USB disk.</source>
        <translation>USB 디스크를 꽂으십시오.</translation>
    </message>
    <message>
        <source>What is chosen, or why nothing can be</source>
        <translation>선택한 것 또는 선택할 수 없는 이유</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Use what is chosen</source>
        <translation>선택한 것 사용</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>이 폴더 사용</translation>
    </message>
    <message>
        <source>The disk %1 was pulled out.</source>
        <translation>디스크 %1이(가) 뽑혔습니다.</translation>
    </message>
    <message>
        <source>%1 free of %2</source>
        <translation>%2 중 %1 남음</translation>
    </message>
    <message>
        <source>Its files are shown as soon as it is ready.</source>
        <translation>준비되는 대로 파일을 표시합니다.</translation>
    </message>
    <message>
        <source>The disk %1 is plugged in, but cannot be read. Format it on a PC (FAT32).</source>
        <translation>디스크 %1이(가) 꽂혀 있으나 읽을 수 없습니다. PC에서 포맷하십시오(FAT32).</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>폴더를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Replaces %1</source>
        <translation>%1을(를) 바꿉니다</translation>
    </message>
    <message>
        <source>Touch a file.</source>
        <translation>파일을 터치하십시오.</translation>
    </message>
    <message>
        <source>There is no such file in this folder.</source>
        <translation>이 폴더에 그런 파일이 없습니다.</translation>
    </message>
    <message>
        <source>Replace the file?</source>
        <translation>파일을 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1이(가) 이미 있습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1을(를) 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>It is safe to pull out the disk %1 now.</source>
        <translation>이제 디스크 %1을(를) 안전하게 뽑을 수 있습니다.</translation>
    </message>
    <message>
        <source>Do not pull out the disk %1 yet: it has not taken everything.</source>
        <translation>아직 디스크 %1을(를) 뽑지 마십시오: 쓰기가 끝나지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 is on no disk that is plugged in</source>
        <translation>%1은(는) 연결된 디스크에 없습니다</translation>
    </message>
</context>
</TS>
