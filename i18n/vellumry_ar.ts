<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Vellumry</name>
    <message>
        <source>%1 GB</source>
        <translation>‏%1 غ.ب</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>‏%1 ك.ب</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>‏%1 م.ب</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>‏%1 ت.ب</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>‏⁨%1⁩ ولا شيء غيره</numerusform>
            <numerusform>‏⁨%1⁩ وملف آخر</numerusform>
            <numerusform>‏⁨%1⁩ وملفان آخران</numerusform>
            <numerusform>‏⁨%1⁩ و%n ملفات أخرى</numerusform>
            <numerusform>‏⁨%1⁩ و%n ملفًا آخر</numerusform>
            <numerusform>‏⁨%1⁩ و%n ملف آخر</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 anywhere to paste this</source>
        <translation>‏⁨%1⁩ للصق هذا في أي مكان</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>‏%1 بايت</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut.</source>
        <translation>يستخدم تطبيق آخر ⁨%1⁩ بالفعل. اختر اختصارًا آخر.</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>الاختصار ⁨%1⁩ متاح.</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>‏%1 ث</translation>
    </message>
    <message>
        <source>%1 to paste</source>
        <translation>‏%1 بانتظار اللصق</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation>التالي: %1</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%L1. %2</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>لا أحرف</numerusform>
            <numerusform>حرف واحد</numerusform>
            <numerusform>حرفان</numerusform>
            <numerusform>%n أحرف</numerusform>
            <numerusform>%n حرفًا</numerusform>
            <numerusform>%n حرف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>لا عناصر</numerusform>
            <numerusform>عنصر واحد</numerusform>
            <numerusform>عنصران</numerusform>
            <numerusform>%n عناصر</numerusform>
            <numerusform>%n عنصرًا</numerusform>
            <numerusform>%n عنصر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips deleted</source>
        <translation>
            <numerusform>لم يُحذف أي عنصر</numerusform>
            <numerusform>حُذف عنصر واحد</numerusform>
            <numerusform>حُذف عنصران</numerusform>
            <numerusform>حُذفت %n عناصر</numerusform>
            <numerusform>حُذف %n عنصرًا</numerusform>
            <numerusform>حُذف %n عنصر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips selected</source>
        <translation>
            <numerusform>لم يُحدّد أي عنصر</numerusform>
            <numerusform>حُدّد عنصر واحد</numerusform>
            <numerusform>حُدّد عنصران</numerusform>
            <numerusform>حُدّدت %n عناصر</numerusform>
            <numerusform>حُدّد %n عنصرًا</numerusform>
            <numerusform>حُدّد %n عنصر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Capturing</source>
        <translation>
            <numerusform>لا عناصر · جارٍ الالتقاط</numerusform>
            <numerusform>عنصر واحد · جارٍ الالتقاط</numerusform>
            <numerusform>عنصران · جارٍ الالتقاط</numerusform>
            <numerusform>%n عناصر · جارٍ الالتقاط</numerusform>
            <numerusform>%n عنصرًا · جارٍ الالتقاط</numerusform>
            <numerusform>%n عنصر · جارٍ الالتقاط</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Not saved: kept until you quit</source>
        <translation>
            <numerusform>لا عناصر · بلا حفظ: يبقى حتى الإنهاء</numerusform>
            <numerusform>عنصر واحد · غير محفوظ: يبقى حتى الإنهاء</numerusform>
            <numerusform>عنصران · بلا حفظ: يبقيان حتى الإنهاء</numerusform>
            <numerusform>%n عناصر · بلا حفظ: تبقى حتى الإنهاء</numerusform>
            <numerusform>%n عنصرًا · بلا حفظ: تبقى حتى الإنهاء</numerusform>
            <numerusform>%n عنصر · بلا حفظ: تبقى حتى الإنهاء</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused</source>
        <translation>
            <numerusform>لا عناصر · متوقف مؤقتًا</numerusform>
            <numerusform>عنصر واحد · متوقف مؤقتًا</numerusform>
            <numerusform>عنصران · متوقف مؤقتًا</numerusform>
            <numerusform>%n عناصر · متوقف مؤقتًا</numerusform>
            <numerusform>%n عنصرًا · متوقف مؤقتًا</numerusform>
            <numerusform>%n عنصر · متوقف مؤقتًا</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused until %1</source>
        <translation>
            <numerusform>لا عناصر · متوقف حتى %1</numerusform>
            <numerusform>عنصر واحد · متوقف حتى %1</numerusform>
            <numerusform>عنصران · متوقف حتى %1</numerusform>
            <numerusform>%n عناصر · متوقف حتى %1</numerusform>
            <numerusform>%n عنصرًا · متوقف حتى %1</numerusform>
            <numerusform>%n عنصر · متوقف حتى %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · encrypted on this Mac</source>
        <translation>
            <numerusform>لا عناصر · مشفّر على هذا الحاسوب</numerusform>
            <numerusform>عنصر واحد · مشفّر على هذا الحاسوب</numerusform>
            <numerusform>عنصران · مشفّران على هذا الحاسوب</numerusform>
            <numerusform>%n عناصر · مشفّرة على هذا الحاسوب</numerusform>
            <numerusform>%n عنصرًا · مشفّرة على هذا الحاسوب</numerusform>
            <numerusform>%n عنصر · مشفّرة على هذا الحاسوب</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>صفر أيام</numerusform>
            <numerusform>يوم واحد</numerusform>
            <numerusform>يومان</numerusform>
            <numerusform>%n أيام</numerusform>
            <numerusform>%n يومًا</numerusform>
            <numerusform>%n يوم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>لا غيرها</numerusform>
            <numerusform>واحد آخر</numerusform>
            <numerusform>اثنان آخران</numerusform>
            <numerusform>%n أخرى</numerusform>
            <numerusform>%n أخرى</numerusform>
            <numerusform>%n أخرى</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more password managers (Bitwarden, LastPass, Dashlane…) are skipped too as soon as they're installed.</source>
        <translation>
            <numerusform>لا مدير كلمات سر آخر لتخطّيه.</numerusform>
            <numerusform>ويُتخطّى مدير كلمات سر آخر (مثل Bitwarden أو LastPass أو Dashlane) حال تثبيته.</numerusform>
            <numerusform>ويُتخطّى مديرا كلمات سر آخران (مثل Bitwarden وLastPass) حال تثبيتهما.</numerusform>
            <numerusform>ويُتخطّى %n مديري كلمات سر آخرين (مثل Bitwarden وLastPass وDashlane) حال تثبيتهم.</numerusform>
            <numerusform>ويُتخطّى %n مدير كلمات سر آخر (مثل Bitwarden وLastPass وDashlane) حال تثبيته.</numerusform>
            <numerusform>ويُتخطّى %n مدير كلمات سر آخر (مثل Bitwarden وLastPass وDashlane) حال تثبيته.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>بايت واحد</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>يوم واحد</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>شهر واحد</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>أسبوع واحد</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>سنة واحدة</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>ثلاثة أشهر</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>أضف</translation>
    </message>
    <message>
        <source>Add Apps…</source>
        <translation>أضف تطبيقات…</translation>
    </message>
    <message>
        <source>Add to Paste Stack</source>
        <translation>أضف إلى مكدّس اللصق</translation>
    </message>
    <message numerus="yes">
        <source>After %n hours</source>
        <translation>
            <numerusform>فورًا</numerusform>
            <numerusform>بعد ساعة</numerusform>
            <numerusform>بعد ساعتين</numerusform>
            <numerusform>بعد %n ساعات</numerusform>
            <numerusform>بعد %n ساعة</numerusform>
            <numerusform>بعد %n ساعة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n minutes</source>
        <translation>
            <numerusform>فورًا</numerusform>
            <numerusform>بعد دقيقة</numerusform>
            <numerusform>بعد دقيقتين</numerusform>
            <numerusform>بعد %n دقائق</numerusform>
            <numerusform>بعد %n دقيقة</numerusform>
            <numerusform>بعد %n دقيقة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n seconds</source>
        <translation>
            <numerusform>فورًا</numerusform>
            <numerusform>بعد ثانية</numerusform>
            <numerusform>بعد ثانيتين</numerusform>
            <numerusform>بعد %n ثوانٍ</numerusform>
            <numerusform>بعد %n ثانية</numerusform>
            <numerusform>بعد %n ثانية</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message numerus="yes">
        <source>All %n pasted</source>
        <translation>
            <numerusform>لم يُلصق شيء</numerusform>
            <numerusform>أُلصق عنصر واحد</numerusform>
            <numerusform>أُلصق العنصران</numerusform>
            <numerusform>أُلصقت العناصر كلها (%n)</numerusform>
            <numerusform>أُلصقت العناصر كلها (%n)</numerusform>
            <numerusform>أُلصقت العناصر كلها (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Pasting…</source>
        <translation>اسمح باللصق…</translation>
    </message>
    <message>
        <source>Allow Vellumry to paste for you</source>
        <translation>اسمح لـ Vellumry باللصق نيابةً عنك</translation>
    </message>
    <message>
        <source>Allowed in Privacy &amp; Security → Accessibility</source>
        <translation>مسموح له بضغط المفاتيح</translation>
    </message>
    <message>
        <source>Allowed. Files from these folders paste normally.</source>
        <translation>مسموح. تُلصق ملفات هذه المجلدات كالمعتاد.</translation>
    </message>
    <message>
        <source>Allowed. Vellumry can paste for you.</source>
        <translation>مسموح. يستطيع Vellumry اللصق نيابةً عنك.</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>اسمح…</translation>
    </message>
    <message>
        <source>Always on</source>
        <translation>مفعّل دائمًا</translation>
    </message>
    <message>
        <source>Another program holds your history</source>
        <translation>برنامج آخر يستخدم سجلك</translation>
    </message>
    <message>
        <source>Anything an app marks as secret or temporary is never saved.</source>
        <translation>لا يُحفظ أبدًا ما يعلّمه تطبيق بأنه سري أو مؤقت.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Apps that paste differently</source>
        <translation>تطبيقات تلصق بطريقة مختلفة</translation>
    </message>
    <message>
        <source>Auto-delete card numbers, codes and API keys</source>
        <translation>احذف أرقام البطاقات والرموز ومفاتيح API تلقائيًا</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Card •••• %1</source>
        <translation>بطاقة •••• %1</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>تحقّق</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>تحقّق الآن</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>التمس التحديثات…</translation>
    </message>
    <message>
        <source>Check the permissions of %1. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>تحقّق من صلاحيات ⁨%1⁩. وحتى ذلك الحين تبقى العناصر إلى أن تُنهي Vellumry فحسب.</translation>
    </message>
    <message>
        <source>Checks once a day</source>
        <translation>يلتمسها مرة كل يوم</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>اختر</translation>
    </message>
    <message>
        <source>Choose apps</source>
        <translation>اختر التطبيقات</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>المختارة</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>امحُ السجل</translation>
    </message>
    <message>
        <source>Clear History, Keep Pinned</source>
        <translation>امحُ وأبقِ المثبّتة</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>امحُ السجل…</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>امحُ السجل</translation>
    </message>
    <message>
        <source>Clear your clipboard history?</source>
        <translation>أتريد محو سجل الحافظة؟</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>امحُ…</translation>
    </message>
    <message>
        <source>Click a shortcut, then press the new keys. ⌫ puts the original back, Esc cancels.</source>
        <translation>انقر اختصارًا ثم اضغط المفاتيح الجديدة. يعيد Backspace الأصلي، ويلغي Esc.</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>عنصر</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>العناصر</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>لون</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>ألوان</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>تابع</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>نُسخ</translation>
    </message>
    <message>
        <source>Copied from %1</source>
        <translation>نُسخ من ⁨%1⁩</translation>
    </message>
    <message>
        <source>Copied from an unknown app</source>
        <translation>نُسخ من تطبيق مجهول</translation>
    </message>
    <message>
        <source>Copied. Press ⌘V to paste</source>
        <translation>نُسخ. اضغط Ctrl+V للصق</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>انسخ</translation>
    </message>
    <message>
        <source>Copy once. Find it anytime.</source>
        <translation>انسخ مرة. وجِده متى شئت.</translation>
    </message>
    <message>
        <source>Copy something. It shows up here.</source>
        <translation>انسخ شيئًا وسيظهر هنا.</translation>
    </message>
    <message>
        <source>Copy this</source>
        <translation>انسخ هذا</translation>
    </message>
    <message>
        <source>Copy what you need, then ⌘V</source>
        <translation>انسخ ما تحتاج إليه، ثم Ctrl+V</translation>
    </message>
    <message>
        <source>Couldn't merge these clips</source>
        <translation>تعذّر دمج هذه العناصر</translation>
    </message>
    <message>
        <source>Couldn't paste this clip</source>
        <translation>تعذّر لصق هذا العنصر</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Default keyring</source>
        <translation>حلقة المفاتيح المبدئية</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>احذف</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n</source>
        <translation>
            <numerusform>لا شيء للحذف</numerusform>
            <numerusform>احذف واحدًا</numerusform>
            <numerusform>احذف اثنين</numerusform>
            <numerusform>احذف %n</numerusform>
            <numerusform>احذف %n</numerusform>
            <numerusform>احذف %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Clips</source>
        <translation>
            <numerusform>لا شيء للحذف</numerusform>
            <numerusform>احذف عنصرًا واحدًا</numerusform>
            <numerusform>احذف عنصرين</numerusform>
            <numerusform>احذف %n عناصر</numerusform>
            <numerusform>احذف %n عنصرًا</numerusform>
            <numerusform>احذف %n عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>احذف (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Delete Everything</source>
        <translation>احذف كل شيء</translation>
    </message>
    <message>
        <source>Delete Everything removes pinned clips too. This can't be undone.</source>
        <translation>يزيل «احذف كل شيء» العناصر المثبّتة أيضًا. لا يمكن التراجع عن هذا.</translation>
    </message>
    <message>
        <source>Delete them</source>
        <translation>احذفها</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>محذوف</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>سطح المكتب</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>المستندات</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>التنزيلات</translation>
    </message>
    <message>
        <source>Drag the panel by an empty spot to move it. It opens there next time.</source>
        <translation>اسحب اللوحة من موضع فارغ لتحريكها. ستُفتح هناك في المرة القادمة.</translation>
    </message>
    <message>
        <source>Each paste takes the next clip.</source>
        <translation>تأخذ كل عملية لصق العنصر التالي.</translation>
    </message>
    <message>
        <source>Email Support</source>
        <translation>الدعم بالبريد الإلكتروني</translation>
    </message>
    <message>
        <source>Encrypted history</source>
        <translation>سجل مشفّر</translation>
    </message>
    <message>
        <source>Every copy is noticed.</source>
        <translation>تُلاحظ كل عملية نسخ.</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>F10</source>
        <translation>F10</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>F4</source>
        <translation>F4</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>F6</source>
        <translation>F6</translation>
    </message>
    <message>
        <source>F7</source>
        <translation>F7</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ملفات</translation>
    </message>
    <message>
        <source>Files from Desktop, Documents and Downloads paste normally.</source>
        <translation>تُلصق ملفات سطح المكتب والمستندات والتنزيلات كالمعتاد.</translation>
    </message>
    <message>
        <source>Files you copy in Finder</source>
        <translation>الملفات التي تنسخها في مدير الملفات</translation>
    </message>
    <message>
        <source>Finds it in a keystroke</source>
        <translation>يجده ببضعة أحرف</translation>
    </message>
    <message>
        <source>For 1 Hour</source>
        <translation>لمدة ساعة</translation>
    </message>
    <message>
        <source>For 5 Minutes</source>
        <translation>لمدة خمس دقائق</translation>
    </message>
    <message>
        <source>For the shortcut, add this to %1</source>
        <translation>للاختصار، أضف هذا إلى ⁨%1⁩</translation>
    </message>
    <message>
        <source>For the shortcut, bind these in your desktop's settings</source>
        <translation>للاختصار، اربط هذه في إعدادات سطح مكتبك</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>إلى الأبد</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>ابدأ</translation>
    </message>
    <message>
        <source>Hello from Vellumry 👋</source>
        <translation>أهلًا من Vellumry 👋</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>مخفي</translation>
    </message>
    <message>
        <source>Hidden · deletes itself soon</source>
        <translation>مخفي · يُحذف تلقائيًا قريبًا</translation>
    </message>
    <message>
        <source>Hidden. Deletes itself in %1</source>
        <translation>مخفي. يُحذف تلقائيًا خلال %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Hold Ctrl, Alt or Super with the key.</source>
        <translation>اضغط معه Ctrl أو Alt أو Super.</translation>
    </message>
    <message>
        <source>Icon in the system tray</source>
        <translation>أيقونة في صينية النظام</translation>
    </message>
    <message>
        <source>Ignore Next Copy</source>
        <translation>تجاهل النسخة التالية</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Image %1 × %2</source>
        <translation>صورة %1 × %2</translation>
    </message>
    <message>
        <source>Image · Screenshot</source>
        <translation>صورة · لقطة شاشة</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>صور</translation>
    </message>
    <message>
        <source>Images and files take up to</source>
        <translation>أقصى حجم للصور والملفات</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out instead</source>
        <translation>لا يمكن دمج الصور. اسحبها إلى الخارج بدلًا من ذلك</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out, or paste them one by one with Stack.</source>
        <translation>لا يمكن دمج الصور. اسحبها إلى الخارج، أو ألصقها واحدةً تلو الأخرى بالمكدّس.</translation>
    </message>
    <message>
        <source>In Trash</source>
        <translation>في المهملات</translation>
    </message>
    <message>
        <source>In every app</source>
        <translation>في كل التطبيقات</translation>
    </message>
    <message>
        <source>In the Trash. Pastes until the Trash is emptied</source>
        <translation>في المهملات. يمكن لصقه إلى أن تُفرغ</translation>
    </message>
    <message>
        <source>In the panel</source>
        <translation>في اللوحة</translation>
    </message>
    <message>
        <source>Install Tesseract and its data for your language.</source>
        <translation>ثبّت Tesseract وبيانات لغتك.</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>ثبّت التحديثات تلقائيًا</translation>
    </message>
    <message>
        <source>It does not give out, or does not store, the key to your clipboard history. Allow it in the keyring's settings. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>لا تعطي مفتاح سجل الحافظة أو لا تخزّنه. اسمح بذلك في إعدادات حلقة المفاتيح. وحتى ذلك الحين تبقى العناصر إلى أن تُنهي Vellumry فحسب.</translation>
    </message>
    <message>
        <source>It uses the file in %1. When it is done, your history comes back by itself, with what you copied until then.</source>
        <translation>يستخدم الملف الذي في ⁨%1⁩. وحين ينتهي يعود سجلك من تلقاء نفسه، ومعه ما نسخته حتى ذلك الحين.</translation>
    </message>
    <message>
        <source>Keep at most</source>
        <translation>العدد الأقصى</translation>
    </message>
    <message>
        <source>Keep clips for</source>
        <translation>مدة الاحتفاظ بالعناصر</translation>
    </message>
    <message>
        <source>Keep pinned clips, or delete everything.</source>
        <translation>أبقِ العناصر المثبّتة أو احذف كل شيء.</translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n days ago</source>
        <translation>
            <numerusform>آخر تحقّق: اليوم</numerusform>
            <numerusform>آخر تحقّق قبل يوم</numerusform>
            <numerusform>آخر تحقّق قبل يومين</numerusform>
            <numerusform>آخر تحقّق قبل %n أيام</numerusform>
            <numerusform>آخر تحقّق قبل %n يومًا</numerusform>
            <numerusform>آخر تحقّق قبل %n يوم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n hours ago</source>
        <translation>
            <numerusform>آخر تحقّق: الآن</numerusform>
            <numerusform>آخر تحقّق قبل ساعة</numerusform>
            <numerusform>آخر تحقّق قبل ساعتين</numerusform>
            <numerusform>آخر تحقّق قبل %n ساعات</numerusform>
            <numerusform>آخر تحقّق قبل %n ساعة</numerusform>
            <numerusform>آخر تحقّق قبل %n ساعة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n minutes ago</source>
        <translation>
            <numerusform>آخر تحقّق: الآن</numerusform>
            <numerusform>آخر تحقّق قبل دقيقة</numerusform>
            <numerusform>آخر تحقّق قبل دقيقتين</numerusform>
            <numerusform>آخر تحقّق قبل %n دقائق</numerusform>
            <numerusform>آخر تحقّق قبل %n دقيقة</numerusform>
            <numerusform>آخر تحقّق قبل %n دقيقة</numerusform>
        </translation>
    </message>
    <message>
        <source>Last checked just now</source>
        <translation>آخر تحقّق: الآن</translation>
    </message>
    <message>
        <source>Let Vellumry paste for you</source>
        <translation>دع Vellumry يلصق نيابةً عنك</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Like a terminal</source>
        <translation>مثل الطرفية</translation>
    </message>
    <message>
        <source>Like other apps</source>
        <translation>مثل التطبيقات الأخرى</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>رابط</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>روابط</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>Merge &amp; Paste</source>
        <translation>ادمج وألصق</translation>
    </message>
    <message>
        <source>Merge &amp; paste</source>
        <translation>ادمج وألصق</translation>
    </message>
    <message>
        <source>Merge and Paste</source>
        <translation>ادمج وألصق</translation>
    </message>
    <message>
        <source>Merge into One Clip</source>
        <translation>ادمج في عنصر واحد</translation>
    </message>
    <message>
        <source>Merge joins them into one clip, one per line, in the order you copied them.</source>
        <translation>يجمعها الدمج في عنصر واحد، كل منها في سطر، بالترتيب الذي نسختها به.</translation>
    </message>
    <message>
        <source>Merge makes one clip with all these files.</source>
        <translation>ينشئ الدمج عنصرًا واحدًا فيه كل هذه الملفات.</translation>
    </message>
    <message>
        <source>Merged</source>
        <translation>مدمج</translation>
    </message>
    <message numerus="yes">
        <source>Merged %n clips into one</source>
        <translation>
            <numerusform>لم يُدمج شيء</numerusform>
            <numerusform>دُمج عنصر واحد</numerusform>
            <numerusform>دُمج عنصران في واحد</numerusform>
            <numerusform>دُمجت %n عناصر في واحد</numerusform>
            <numerusform>دُمج %n عنصرًا في واحد</numerusform>
            <numerusform>دُمج %n عنصر في واحد</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Center</source>
        <translation>انقل إلى الوسط</translation>
    </message>
    <message>
        <source>Needs your OK in Privacy &amp; Security → Accessibility</source>
        <translation>يحتاج إلى إذنك لضغط المفاتيح</translation>
    </message>
    <message>
        <source>Never Save</source>
        <translation>لا تحفظ أبدًا</translation>
    </message>
    <message>
        <source>Never save clips from</source>
        <translation>لا تحفظ أبدًا من</translation>
    </message>
    <message>
        <source>New screenshots will be saved in Vellumry</source>
        <translation>ستُحفظ لقطات الشاشة الجديدة في Vellumry</translation>
    </message>
    <message>
        <source>Newest first. Click for oldest first</source>
        <translation>الأحدث أولًا. انقر للأقدم أولًا</translation>
    </message>
    <message>
        <source>Next filter · close</source>
        <translation>المرشّح التالي · إغلاق</translation>
    </message>
    <message>
        <source>No apps found</source>
        <translation>لم يُعثر على تطبيقات</translation>
    </message>
    <message>
        <source>No clips match “%1”</source>
        <translation>لا عناصر تطابق «⁨%1⁩»</translation>
    </message>
    <message>
        <source>No keyring answers in this session, and the key to your clipboard history is kept in one. Start GNOME Keyring, KWallet or KeePassXC: your history then comes back by itself, with what you copied until then. Without a keyring, clips are only kept until you quit Vellumry.</source>
        <translation>لا تستجيب أي حلقة مفاتيح في هذه الجلسة، ومفتاح سجل الحافظة محفوظ في واحدة. شغّل GNOME Keyring أو KWallet أو KeePassXC: سيعود سجلك من تلقاء نفسه، ومعه ما نسخته حتى ذلك الحين. من دون حلقة مفاتيح تبقى العناصر إلى أن تُنهي Vellumry فحسب.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>غير مثبّت</translation>
    </message>
    <message>
        <source>Not now, I'll press ⌘V myself</source>
        <translation>ليس الآن، سأضغط Ctrl+V بنفسي</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>لا شيء هنا بعد</translation>
    </message>
    <message>
        <source>Nothing pinned at ⌃⌥%1 yet. Pin a clip with ⌘P</source>
        <translation>لا شيء مثبّت على Super+Alt+%1 بعد. ثبّت عنصرًا بالضغط على Ctrl+P</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Off = Vellumry copies and you press ⌘V.</source>
        <translation>عند التعطيل ينسخ Vellumry وتضغط أنت Ctrl+V.</translation>
    </message>
    <message>
        <source>Off in developer builds</source>
        <translation>معطّلة في إصدارات التطوير</translation>
    </message>
    <message>
        <source>Off: you press ⌘V</source>
        <translation>معطّل: تضغط أنت Ctrl+V</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Oldest first. Click for newest first</source>
        <translation>الأقدم أولًا. انقر للأحدث أولًا</translation>
    </message>
    <message>
        <source>Oldest unpinned clips go first. Pinned clips are always kept.</source>
        <translation>تُزال أقدم العناصر غير المثبّتة أولًا. أما المثبّتة فتبقى دائمًا.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>مفعّل</translation>
    </message>
    <message>
        <source>On “%1”, which isn't connected</source>
        <translation>على «⁨%1⁩» وهو غير متصل</translation>
    </message>
    <message>
        <source>Open It for Me</source>
        <translation>افتحه لي</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>افتح الرابط</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>اطلب الإذن</translation>
    </message>
    <message>
        <source>Open Vellumry</source>
        <translation>افتح Vellumry</translation>
    </message>
    <message>
        <source>Open Vellumry at login</source>
        <translation>افتح Vellumry عند الولوج</translation>
    </message>
    <message>
        <source>Optional. macOS asks once for Desktop, Documents and Downloads.</source>
        <translation>اختياري. يجرّب Vellumry سطح المكتب والمستندات والتنزيلات مرة واحدة.</translation>
    </message>
    <message>
        <source>Panel position</source>
        <translation>موضع اللوحة</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>ألصق</translation>
    </message>
    <message>
        <source>Paste File Name</source>
        <translation>ألصق اسم الملف</translation>
    </message>
    <message>
        <source>Paste One by One (Paste Stack)</source>
        <translation>ألصق واحدًا تلو الآخر (مكدّس اللصق)</translation>
    </message>
    <message>
        <source>Paste Stack</source>
        <translation>مكدّس اللصق</translation>
    </message>
    <message>
        <source>Paste Stack couldn't start. Turn Vellumry on in Privacy &amp; Security → Accessibility</source>
        <translation>تعذّر بدء مكدّس اللصق. برنامج آخر يستأثر بالاختصار Ctrl+V</translation>
    </message>
    <message>
        <source>Paste Stack needs “Allow Vellumry to paste for you”</source>
        <translation>يحتاج مكدّس اللصق إلى «اسمح لـ Vellumry باللصق نيابةً عنك»</translation>
    </message>
    <message>
        <source>Paste Stack: copy several things, every ⌘V pastes the next (⌃⌘S)</source>
        <translation>مكدّس اللصق: انسخ عدة أشياء، وكل Ctrl+V يلصق التالي (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Paste Text in Image</source>
        <translation>ألصق النص الذي في الصورة</translation>
    </message>
    <message>
        <source>Paste Transformed</source>
        <translation>ألصق بعد التحويل</translation>
    </message>
    <message>
        <source>Paste as Plain Text</source>
        <translation>ألصق نصًا مجردًا</translation>
    </message>
    <message>
        <source>Paste as plain text by default</source>
        <translation>ألصق دائمًا نصًا مجردًا</translation>
    </message>
    <message>
        <source>Paste clip 1–9</source>
        <translation>ألصق العنصر 1–9</translation>
    </message>
    <message>
        <source>Paste directly into the app</source>
        <translation>ألصق في التطبيق مباشرةً</translation>
    </message>
    <message>
        <source>Paste file name</source>
        <translation>ألصق الاسم</translation>
    </message>
    <message>
        <source>Paste files from Desktop, Documents and Downloads</source>
        <translation>ألصق ملفات سطح المكتب والمستندات والتنزيلات</translation>
    </message>
    <message>
        <source>Paste into this app as usual again</source>
        <translation>عُد إلى اللصق المعتاد في هذا التطبيق</translation>
    </message>
    <message>
        <source>Paste one by one</source>
        <translation>ألصق واحدًا واحدًا</translation>
    </message>
    <message>
        <source>Paste pinned clips with ⌃⌥1 … ⌃⌥9</source>
        <translation>ألصق العناصر المثبّتة بواسطة Super+Alt+1 … Super+Alt+9</translation>
    </message>
    <message>
        <source>Paste them one by one: every ⌘V pastes the next (Paste Stack)</source>
        <translation>ألصقها واحدًا تلو الآخر: كل Ctrl+V يلصق التالي (مكدّس اللصق)</translation>
    </message>
    <message>
        <source>Paste transformed</source>
        <translation>ألصق المحوّل</translation>
    </message>
    <message>
        <source>Paste · paste as plain text</source>
        <translation>لصق · لصق نص مجرد</translation>
    </message>
    <message>
        <source>Pasted</source>
        <translation>أُلصق</translation>
    </message>
    <message>
        <source>Pastes as plain text. Your clip stays as it is.</source>
        <translation>يلصق نصًا مجردًا. ويبقى عنصرك كما هو.</translation>
    </message>
    <message>
        <source>Pastes for you</source>
        <translation>يلصق نيابةً عنك</translation>
    </message>
    <message>
        <source>Pastes the text in this image</source>
        <translation>يلصق النص الذي في هذه الصورة</translation>
    </message>
    <message>
        <source>Pasting</source>
        <translation>اللصق</translation>
    </message>
    <message>
        <source>Pasting for you</source>
        <translation>اللصق نيابةً عنك</translation>
    </message>
    <message>
        <source>Pause Capture</source>
        <translation>أوقف الالتقاط مؤقتًا</translation>
    </message>
    <message>
        <source>Paused. Nothing you copy is saved until you resume</source>
        <translation>متوقف مؤقتًا. لن يُحفظ ما تنسخه حتى تستأنف</translation>
    </message>
    <message>
        <source>Pick a clip and it lands right where you were typing. macOS asks you to allow this once.</source>
        <translation>اختر عنصرًا فيصل إلى حيث كنت تكتب تمامًا. تطلب بعض أسطح المكتب إذنك مرة واحدة.</translation>
    </message>
    <message>
        <source>Pick clips in the panel one by one instead.</source>
        <translation>اختر العناصر من اللوحة واحدًا تلو الآخر بدلًا من ذلك.</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>ثبّت</translation>
    </message>
    <message numerus="yes">
        <source>Pin %n Clips</source>
        <translation>
            <numerusform>لا شيء للتثبيت</numerusform>
            <numerusform>ثبّت عنصرًا واحدًا</numerusform>
            <numerusform>ثبّت عنصرين</numerusform>
            <numerusform>ثبّت %n عناصر</numerusform>
            <numerusform>ثبّت %n عنصرًا</numerusform>
            <numerusform>ثبّت %n عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin (⌘P)</source>
        <translation>ثبّت (Ctrl+P)</translation>
    </message>
    <message numerus="yes">
        <source>Pin all %n</source>
        <translation>
            <numerusform>لا شيء للتثبيت</numerusform>
            <numerusform>ثبّت واحدًا</numerusform>
            <numerusform>ثبّت الاثنين</numerusform>
            <numerusform>ثبّت الكل (%n)</numerusform>
            <numerusform>ثبّت الكل (%n)</numerusform>
            <numerusform>ثبّت الكل (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin · delete · copy</source>
        <translation>تثبيت · حذف · نسخ</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>المثبّتة</translation>
    </message>
    <message>
        <source>Pinned clip</source>
        <translation>مثبّت</translation>
    </message>
    <message>
        <source>Pinned clips are kept. This can't be undone.</source>
        <translation>تبقى العناصر المثبّتة. لا يمكن التراجع عن هذا.</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>نص مجرد</translation>
    </message>
    <message>
        <source>Press %1 anytime to open Vellumry.</source>
        <translation>اضغط %1 في أي وقت لفتح Vellumry.</translation>
    </message>
    <message>
        <source>Press Return to paste here</source>
        <translation>اضغط Enter للصق هنا</translation>
    </message>
    <message>
        <source>Press new shortcut…</source>
        <translation>اضغط الاختصار الجديد…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>الخصوصية</translation>
    </message>
    <message>
        <source>Privacy &amp; Security › Accessibility</source>
        <translation>إذن ضغط المفاتيح</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>سياسة الخصوصية</translation>
    </message>
    <message>
        <source>Private and encrypted</source>
        <translation>خاص ومشفّر</translation>
    </message>
    <message>
        <source>Quit Vellumry</source>
        <translation>أنهِ Vellumry</translation>
    </message>
    <message>
        <source>Read text in this image</source>
        <translation>اقرأ النص الذي في هذه الصورة</translation>
    </message>
    <message>
        <source>Reading the text in this image…</source>
        <translation>جارٍ قراءة النص الذي في هذه الصورة…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>الحديثة</translation>
    </message>
    <message>
        <source>Recent clips in the menu</source>
        <translation>العناصر الحديثة في القائمة</translation>
    </message>
    <message>
        <source>Remembering what you copy</source>
        <translation>تذكّر ما تنسخه</translation>
    </message>
    <message>
        <source>Remembers everything you copy</source>
        <translation>يتذكّر كل ما تنسخه</translation>
    </message>
    <message>
        <source>Remove Line Breaks</source>
        <translation>أزِل فواصل الأسطر</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>أعِد العرض</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>أعِد التشغيل الآن</translation>
    </message>
    <message>
        <source>Restart to Update to %1</source>
        <translation>أعِد التشغيل للتحديث إلى %1</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>النتائج</translation>
    </message>
    <message>
        <source>Resume Capture</source>
        <translation>استأنف الالتقاط</translation>
    </message>
    <message>
        <source>Resumed. What you copy is saved again</source>
        <translation>استؤنف. يُحفظ ما تنسخه مجددًا</translation>
    </message>
    <message>
        <source>Save New Screenshots</source>
        <translation>احفظ لقطات الشاشة الجديدة</translation>
    </message>
    <message>
        <source>Save clips from this app again</source>
        <translation>عُد إلى حفظ العناصر من هذا التطبيق</translation>
    </message>
    <message>
        <source>Save new screenshots</source>
        <translation>احفظ لقطات الشاشة الجديدة</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>لقطة شاشة</translation>
    </message>
    <message>
        <source>Screenshot %1 at %2</source>
        <translation>لقطة شاشة %1 في %2</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>لقطات الشاشة</translation>
    </message>
    <message>
        <source>Screenshots saved with ⌘⇧3 / ⌘⇧4 are added too, and their text becomes searchable. macOS asks once to allow Vellumry to see the folder they're saved in.</source>
        <translation>تُضاف لقطات الشاشة التي تحفظها أيضًا، ويصبح نصها قابلًا للبحث. يجب أن يتمكن Vellumry من قراءة المجلد المحفوظة فيه.</translation>
    </message>
    <message>
        <source>Screenshots you save with ⌘⇧3 or ⌘⇧4 are added to Vellumry too, and their text becomes searchable.</source>
        <translation>تُضاف لقطات الشاشة التي تحفظها إلى Vellumry أيضًا، ويصبح نصها قابلًا للبحث.</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>ابحث عن تطبيقات</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>ابحث في العناصر</translation>
    </message>
    <message>
        <source>Secrets</source>
        <translation>الأسرار</translation>
    </message>
    <message>
        <source>Select several · merge</source>
        <translation>تحديد عدة عناصر · دمج</translation>
    </message>
    <message>
        <source>Sensitive · deletes itself</source>
        <translation>حساس · يُحذف تلقائيًا</translation>
    </message>
    <message>
        <source>Sentence case</source>
        <translation>حرف كبير أول الجملة</translation>
    </message>
    <message>
        <source>Set a shortcut in your desktop's keyboard settings that runs: vellumry --action open-panel</source>
        <translation>أنشئ في إعدادات لوحة المفاتيح لسطح مكتبك اختصارًا يشغّل: vellumry --action open-panel</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>الاختصارات</translation>
    </message>
    <message>
        <source>Shortcuts in every app</source>
        <translation>الاختصارات في كل التطبيقات</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>أظهر في مدير الملفات</translation>
    </message>
    <message>
        <source>Show…</source>
        <translation>أظهر…</translation>
    </message>
    <message>
        <source>Skip passwords from password managers</source>
        <translation>تخطَّ كلمات السر من مديري كلمات السر</translation>
    </message>
    <message>
        <source>Skipped a deleted file</source>
        <translation>تُخطّي ملف محذوف</translation>
    </message>
    <message>
        <source>Skipped. That copy wasn't saved</source>
        <translation>تُخطّيت. لم تُحفظ تلك النسخة</translation>
    </message>
    <message>
        <source>So search can find it by its words. macOS may ask you to allow access to this folder once.</source>
        <translation>ليجدها البحث بكلماتها. قد يطلب منك النظام السماح بالوصول إلى هذا المجلد مرة واحدة.</translation>
    </message>
    <message>
        <source>Sound when pasting</source>
        <translation>صوت عند اللصق</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>مسافة</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>المكدّس</translation>
    </message>
    <message>
        <source>Start / stop Paste Stack</source>
        <translation>بدء مكدّس اللصق / إيقافه</translation>
    </message>
    <message>
        <source>Start GNOME Keyring, KWallet or KeePassXC. Until then, clips are kept until you quit.</source>
        <translation>شغّل GNOME Keyring أو KWallet أو KeePassXC. وحتى ذلك الحين تبقى العناصر إلى أن تُنهي البرنامج.</translation>
    </message>
    <message>
        <source>Start Paste Stack</source>
        <translation>ابدأ مكدّس اللصق</translation>
    </message>
    <message>
        <source>Start Using Vellumry</source>
        <translation>ابدأ استخدام Vellumry</translation>
    </message>
    <message>
        <source>Start Vellumry again to open Settings, or install a tray extension for your desktop.</source>
        <translation>شغّل Vellumry مجددًا لفتح الإعدادات، أو ثبّت امتداد صينية لسطح مكتبك.</translation>
    </message>
    <message>
        <source>Stop Paste Stack</source>
        <translation>أوقف مكدّس اللصق</translation>
    </message>
    <message numerus="yes">
        <source>Stop Paste Stack (%n left)</source>
        <translation>
            <numerusform>أوقف مكدّس اللصق</numerusform>
            <numerusform>أوقف مكدّس اللصق (بقي واحد)</numerusform>
            <numerusform>أوقف مكدّس اللصق (بقي اثنان)</numerusform>
            <numerusform>أوقف مكدّس اللصق (بقي %n)</numerusform>
            <numerusform>أوقف مكدّس اللصق (بقي %n)</numerusform>
            <numerusform>أوقف مكدّس اللصق (بقي %n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop Paste Stack (⌃⌘S)</source>
        <translation>أوقف مكدّس اللصق (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>التخزين</translation>
    </message>
    <message>
        <source>Switch Vellumry on in System Settings. This screen updates by itself.</source>
        <translation>اسمح لـ Vellumry بضغط المفاتيح حين يسأل سطح مكتبك. تتحدّث هذه الشاشة من تلقاء نفسها.</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Terminals paste with other keys. Vellumry knows most of them; add yours if pasting into it does nothing.</source>
        <translation>تلصق الطرفيات بمفاتيح أخرى. يعرف Vellumry معظمها؛ أضِف طرفيتك إن لم يحدث شيء عند اللصق فيها.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Text in image</source>
        <translation>النص في الصورة</translation>
    </message>
    <message>
        <source>Text in pictures</source>
        <translation>النص في الصور</translation>
    </message>
    <message>
        <source>Text, links, images, files and colors.</source>
        <translation>نصوص وروابط وصور وملفات وألوان.</translation>
    </message>
    <message>
        <source>That's it. Everything you copy is now one shortcut away.</source>
        <translation>هذا كل شيء. ما تنسخه صار على بُعد اختصار واحد.</translation>
    </message>
    <message>
        <source>The file in %1 was left as it is. Check its permissions and the disk. Vellumry tries again; until then, clips are only kept until you quit it.</source>
        <translation>تُرك الملف الذي في ⁨%1⁩ كما كان. تحقّق من صلاحياته ومن القرص. سيعيد Vellumry المحاولة؛ وحتى ذلك الحين تبقى العناصر إلى أن تُنهيه فحسب.</translation>
    </message>
    <message>
        <source>The history can't be saved now. Vellumry tries again</source>
        <translation>يتعذّر حفظ السجل الآن. سيعيد Vellumry المحاولة</translation>
    </message>
    <message>
        <source>The key to your clipboard history is in it. Unlock the keyring: your history then comes back by itself, with what you copied until then. While it is locked, clips are only kept until you quit Vellumry.</source>
        <translation>فيها مفتاح سجل الحافظة. افتح قفل حلقة المفاتيح: سيعود سجلك من تلقاء نفسه، ومعه ما نسخته حتى ذلك الحين. وما دامت مقفلة تبقى العناصر إلى أن تُنهي Vellumry فحسب.</translation>
    </message>
    <message>
        <source>The key to your history is damaged</source>
        <translation>مفتاح سجلك تالف</translation>
    </message>
    <message>
        <source>The next thing you copy isn't saved in Vellumry. Use it before copying a password or other private text.</source>
        <translation>لن يُحفظ في Vellumry الشيء التالي الذي تنسخه. استخدمه قبل نسخ كلمة سر أو نص خاص آخر.</translation>
    </message>
    <message>
        <source>The update couldn't be loaded. Nothing has changed</source>
        <translation>تعذّر تنزيل التحديث. لم يتغير شيء</translation>
    </message>
    <message>
        <source>This clip can't be copied anymore</source>
        <translation>لم يعد نسخ هذا العنصر ممكنًا</translation>
    </message>
    <message>
        <source>This desktop doesn't tell Vellumry of copies. Log in to another session, such as X11.</source>
        <translation>لا يُعلم سطح المكتب هذا Vellumry بعمليات النسخ. لِج إلى جلسة أخرى، مثل X11.</translation>
    </message>
    <message>
        <source>This field blocks pasting from apps. Press ⌘V</source>
        <translation>يمنع هذا الحقل اللصق من التطبيقات. اضغط Ctrl+V</translation>
    </message>
    <message>
        <source>This file was deleted</source>
        <translation>حُذف هذا الملف</translation>
    </message>
    <message>
        <source>This is a Wayland session: Vellumry sees what X11 apps copy, and what the desktop shares with them. Some copies may be missing</source>
        <translation>هذه جلسة Wayland: يرى Vellumry ما تنسخه تطبيقات X11 وما يشاركه سطح المكتب معها. قد تغيب بعض النسخ</translation>
    </message>
    <message>
        <source>This is all Vellumry is. You'll never lose a copy again.</source>
        <translation>هذا كل ما في Vellumry. لن تفقد نسخة بعد اليوم.</translation>
    </message>
    <message>
        <source>This link can't be opened</source>
        <translation>لا يمكن فتح هذا الرابط</translation>
    </message>
    <message>
        <source>Title Case</source>
        <translation>حرف كبير أول كل كلمة</translation>
    </message>
    <message>
        <source>To paste files from %1, allow Vellumry in Privacy &amp; Security → Files and Folders</source>
        <translation>للصق ملفات من %1، امنح Vellumry إذن قراءة ذلك المجلد</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>حوّل</translation>
    </message>
    <message>
        <source>Transform (⌘T)</source>
        <translation>حوّل (Ctrl+T)</translation>
    </message>
    <message>
        <source>Transforms</source>
        <translation>التحويلات</translation>
    </message>
    <message>
        <source>Transforms work on text clips</source>
        <translation>لا يمكن تحويل غير النصوص</translation>
    </message>
    <message>
        <source>Trim Spaces</source>
        <translation>أزِل المسافات الزائدة</translation>
    </message>
    <message>
        <source>Try it: takes 5 seconds</source>
        <translation>جرّبه: يستغرق خمس ثوانٍ</translation>
    </message>
    <message>
        <source>Type two letters. Even text inside screenshots.</source>
        <translation>اكتب حرفين. حتى النص الذي في لقطات الشاشة.</translation>
    </message>
    <message>
        <source>UPPERCASE</source>
        <translation>أحرف كبيرة</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Unknown app</source>
        <translation>تطبيق مجهول</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>افتح القفل…</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>ألغِ التثبيت</translation>
    </message>
    <message numerus="yes">
        <source>Unpin %n Clips</source>
        <translation>
            <numerusform>لا شيء لإلغاء تثبيته</numerusform>
            <numerusform>ألغِ تثبيت عنصر واحد</numerusform>
            <numerusform>ألغِ تثبيت عنصرين</numerusform>
            <numerusform>ألغِ تثبيت %n عناصر</numerusform>
            <numerusform>ألغِ تثبيت %n عنصرًا</numerusform>
            <numerusform>ألغِ تثبيت %n عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>Unpin (⌘P)</source>
        <translation>ألغِ التثبيت (Ctrl+P)</translation>
    </message>
    <message>
        <source>Unpin all (⌘P)</source>
        <translation>ألغِ تثبيت الكل (Ctrl+P)</translation>
    </message>
    <message>
        <source>Until I Resume</source>
        <translation>حتى أستأنف</translation>
    </message>
    <message>
        <source>Update to Vellumry %1…</source>
        <translation>حدّث إلى Vellumry %1…</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>استخدم %1</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>استخدمه</translation>
    </message>
    <message>
        <source>Vellumry %1 is ready to install</source>
        <translation>أصبح Vellumry %1 جاهزًا للتثبيت</translation>
    </message>
    <message>
        <source>Vellumry Settings</source>
        <translation>إعدادات Vellumry</translation>
    </message>
    <message>
        <source>Vellumry Website</source>
        <translation>موقع Vellumry</translation>
    </message>
    <message>
        <source>Vellumry can't open that file. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>لا يستطيع Vellumry فتح ذلك الملف. امنحه إذن قراءة المجلد</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>لا يستطيع Vellumry فتح مجلد لقطات الشاشة. امنحه إذن قراءة المجلد</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders.</source>
        <translation>لا يستطيع Vellumry فتح مجلد لقطات الشاشة. امنحه إذن قراءة المجلد.</translation>
    </message>
    <message>
        <source>Vellumry can't reach your Keychain</source>
        <translation>لا يستطيع Vellumry الوصول إلى حلقة مفاتيحك</translation>
    </message>
    <message>
        <source>Vellumry can't read its history</source>
        <translation>لا يستطيع Vellumry قراءة سجله</translation>
    </message>
    <message>
        <source>Vellumry can't start in this session</source>
        <translation>لا يستطيع Vellumry أن يبدأ في هذه الجلسة</translation>
    </message>
    <message>
        <source>Vellumry can't write to its folder</source>
        <translation>لا يستطيع Vellumry الكتابة في مجلده</translation>
    </message>
    <message>
        <source>Vellumry copies, and you press Ctrl+V. Allow it to press keys if your desktop asks.</source>
        <translation>ينسخ Vellumry وتضغط أنت Ctrl+V. اسمح له بضغط المفاتيح إن سأل سطح مكتبك.</translation>
    </message>
    <message>
        <source>Vellumry is up to date</source>
        <translation>لديك أحدث إصدار من Vellumry</translation>
    </message>
    <message>
        <source>Vellumry keeps a link to files you copy, not a copy of the file, so a deleted file can't be pasted. Moved or renamed files are followed automatically.</source>
        <translation>يحتفظ Vellumry برابط إلى الملفات التي تنسخها لا بنسخة منها، فلا يمكن لصق ملف محذوف. وتُتابع الملفات المنقولة أو المعاد تسميتها تلقائيًا.</translation>
    </message>
    <message>
        <source>Vellumry keeps the key to your encrypted history there. Your desktop will ask for the keyring's password. Until then, clips are kept until you quit.</source>
        <translation>يحفظ Vellumry فيها مفتاح سجلك المشفّر. سيطلب سطح مكتبك كلمة سر حلقة المفاتيح. وحتى ذلك الحين تبقى العناصر إلى أن تُنهي البرنامج.</translation>
    </message>
    <message>
        <source>Vellumry lives in your menu bar. Press the shortcut anytime.</source>
        <translation>ستجد Vellumry في صينية النظام. اضغط الاختصار في أي وقت.</translation>
    </message>
    <message>
        <source>Vellumry needs an X11 display and found none. In a Wayland session, turn on Xwayland, or log in to an X11 session.</source>
        <translation>يحتاج Vellumry إلى شاشة X11 ولم يجد واحدة. في جلسة Wayland فعّل Xwayland، أو لِج إلى جلسة X11.</translation>
    </message>
    <message>
        <source>Vellumry only presses ⌘V for you. It never reads your screen or what you type.</source>
        <translation>كل ما يفعله Vellumry أنه يضغط Ctrl+V نيابةً عنك. لا يقرأ شاشتك ولا ما تكتبه أبدًا.</translation>
    </message>
    <message>
        <source>Vellumry presses the paste keys for you.</source>
        <translation>يضغط Vellumry مفاتيح اللصق نيابةً عنك.</translation>
    </message>
    <message>
        <source>Vellumry started a fresh history</source>
        <translation>بدأ Vellumry سجلًا جديدًا</translation>
    </message>
    <message>
        <source>Vellumry updates itself while you're away from your Mac. Off = it asks first.</source>
        <translation>يحدّث Vellumry نفسه وأنت بعيد عن حاسوبك. عند التعطيل يسألك أولًا.</translation>
    </message>
    <message>
        <source>Vellumry's menu is there.</source>
        <translation>قائمة Vellumry هناك.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
    <message>
        <source>Welcome to Vellumry</source>
        <translation>مرحبًا بك في Vellumry</translation>
    </message>
    <message>
        <source>What works on this desktop</source>
        <translation>ما يعمل على سطح المكتب هذا</translation>
    </message>
    <message>
        <source>What your keyring keeps as “Vellumry history key” is not a key. Restore it, or remove it to begin a new history. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>ما تحتفظ به حلقة مفاتيحك باسم «Vellumry history key» ليس مفتاحًا. استعِده، أو أزِله لبدء سجل جديد. وحتى ذلك الحين تبقى العناصر إلى أن تُنهي Vellumry فحسب.</translation>
    </message>
    <message>
        <source>Where a package manager keeps Vellumry, it updates it too.</source>
        <translation>حيث يتولى مدير حزم أمر Vellumry فإنه يحدّثه أيضًا.</translation>
    </message>
    <message>
        <source>Words in pictures are found.</source>
        <translation>يُعثر على الكلمات التي في الصور.</translation>
    </message>
    <message>
        <source>Works in every app, without opening Vellumry.</source>
        <translation>يعمل في كل التطبيقات من دون فتح Vellumry.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>You're all set</source>
        <translation>كل شيء جاهز</translation>
    </message>
    <message>
        <source>Your Mac is almost full. Vellumry saves text only for now</source>
        <translation>أوشك حاسوبك أن يمتلئ. يحفظ Vellumry النصوص فقط حاليًا</translation>
    </message>
    <message>
        <source>Your clipboard history can't be opened. Make room on the disk: it then comes back by itself, with what you copied until then.</source>
        <translation>لا يمكن فتح سجل الحافظة. أفسِح مكانًا على القرص: سيعود من تلقاء نفسه، ومعه ما نسخته حتى ذلك الحين.</translation>
    </message>
    <message>
        <source>Your clips never leave this Mac.</source>
        <translation>لا تغادر عناصرك هذا الحاسوب أبدًا.</translation>
    </message>
    <message>
        <source>Your desktop may ask for your keyring's password. The key to your history is in it</source>
        <translation>قد يطلب سطح مكتبك كلمة سر حلقة مفاتيحك. ففيها مفتاح سجلك</translation>
    </message>
    <message>
        <source>Your disk is full</source>
        <translation>قرصك ممتلئ</translation>
    </message>
    <message>
        <source>Your history isn't open. Unlock your keyring: it then comes back by itself.</source>
        <translation>سجلك غير مفتوح. افتح قفل حلقة مفاتيحك: سيعود من تلقاء نفسه.</translation>
    </message>
    <message>
        <source>Your keyring is locked</source>
        <translation>حلقة مفاتيحك مقفلة</translation>
    </message>
    <message>
        <source>Your keyring keeps the key.</source>
        <translation>تحفظ حلقة مفاتيحك المفتاح.</translation>
    </message>
    <message>
        <source>Your keyring refused Vellumry</source>
        <translation>رفضت حلقة مفاتيحك Vellumry</translation>
    </message>
    <message>
        <source>Your next copy will be saved</source>
        <translation>ستُحفظ نسختك التالية</translation>
    </message>
    <message>
        <source>Your next copy won't be saved</source>
        <translation>لن تُحفظ نسختك التالية</translation>
    </message>
    <message>
        <source>Your paste lands here</source>
        <translation>هنا يظهر ما تلصقه</translation>
    </message>
    <message>
        <source>Your previous history couldn't be read on this computer, so a new one was started. The old one is kept as a backup: %1</source>
        <translation>تعذّرت قراءة سجلك السابق على هذا الحاسوب، فبُدئ سجل جديد. والقديم محفوظ نسخةً احتياطية: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Your shortcuts reach Vellumry wherever you are.</source>
        <translation>تصل اختصاراتك إلى Vellumry أينما كنت.</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>صفر ك.ب</translation>
    </message>
    <message>
        <source>en</source>
        <translation>ar</translation>
    </message>
    <message>
        <source>lowercase</source>
        <translation>أحرف صغيرة</translation>
    </message>
    <message>
        <source>macOS asks once per folder. Vellumry only opens a file when you paste or copy it.</source>
        <translation>لا يفتح Vellumry ملفًا إلا حين تلصقه أو تنسخه.</translation>
    </message>
    <message>
        <source>macOS didn't allow it. Check System Settings → General → Login Items.</source>
        <translation>لم يسمح سطح مكتبك بذلك. تحقّق من إعدادات البرامج التي تبدأ عند الولوج فيه.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed to Vellumry. Turn it on in Files and Folders.</source>
        <translation>لا يستطيع Vellumry قراءة %1. امنح نفسك إذن قراءة ذلك المجلد.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed. Allow it in Files and Folders.</source>
        <translation>لا يستطيع Vellumry قراءة %1. امنح نفسك إذن قراءة ذلك المجلد.</translation>
    </message>
    <message>
        <source>←</source>
        <translation>←</translation>
    </message>
    <message>
        <source>↑</source>
        <translation>↑</translation>
    </message>
    <message>
        <source>→</source>
        <translation>→</translation>
    </message>
    <message>
        <source>↓</source>
        <translation>↓</translation>
    </message>
    <message>
        <source>↖</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>↘</source>
        <translation>End</translation>
    </message>
    <message>
        <source>↩</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>⇞</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>⇟</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>⇥</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>⇧</source>
        <translation>Shift+</translation>
    </message>
    <message>
        <source>⇧↑  ⇧↓</source>
        <translation>Shift+↑  Shift+↓</translation>
    </message>
    <message>
        <source>⇧↩</source>
        <translation>Shift+Enter</translation>
    </message>
    <message>
        <source>⌃</source>
        <translation>Super+</translation>
    </message>
    <message>
        <source>⌃⌘S</source>
        <translation>Super+Ctrl+S</translation>
    </message>
    <message>
        <source>⌃⌘V</source>
        <translation>Super+Ctrl+V</translation>
    </message>
    <message>
        <source>⌃⌥%1</source>
        <translation>Super+Alt+%1</translation>
    </message>
    <message>
        <source>⌘</source>
        <translation>Ctrl+</translation>
    </message>
    <message>
        <source>⌘%1</source>
        <translation>Ctrl+%1</translation>
    </message>
    <message>
        <source>⌘,</source>
        <translation>Ctrl+,</translation>
    </message>
    <message>
        <source>⌘1 … ⌘9</source>
        <translation>Ctrl+1 … Ctrl+9</translation>
    </message>
    <message>
        <source>⌘C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>⌘M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>⌘P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>⌘Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>⌘T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>⌘⌫</source>
        <translation>Ctrl+Del</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source>⌦</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>⌫</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>⎋</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>%1 can't be written to. Choose another folder.</source>
        <translation>تتعذّر الكتابة في ⁨%1⁩. اختر مجلدًا آخر.</translation>
    </message>
    <message>
        <source>%1 holds no finished export of Vellumry.</source>
        <translation>لا يحوي ⁨%1⁩ تصديرًا مكتملًا من Vellumry.</translation>
    </message>
    <message>
        <source>%1 is not empty. Choose a new folder.</source>
        <translation>المجلد ⁨%1⁩ ليس فارغًا. اختر مجلدًا جديدًا.</translation>
    </message>
    <message numerus="yes">
        <source>%n clips are beyond the limits of your history.</source>
        <translation>
            <numerusform>لم يتجاوز أي عنصر حدود سجلك.</numerusform>
            <numerusform>تجاوز عنصر واحد حدود سجلك.</numerusform>
            <numerusform>تجاوز عنصران حدود سجلك.</numerusform>
            <numerusform>تجاوزت %n عناصر حدود سجلك.</numerusform>
            <numerusform>تجاوز %n عنصرًا حدود سجلك.</numerusform>
            <numerusform>تجاوز %n عنصر حدود سجلك.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips are in %1 now, and not encrypted there.</source>
        <translation>
            <numerusform>لا عناصر في ⁨%1⁩ الآن.</numerusform>
            <numerusform>عنصر واحد في ⁨%1⁩ الآن، وهو غير مشفّر هناك.</numerusform>
            <numerusform>عنصران في ⁨%1⁩ الآن، وهما غير مشفّرين هناك.</numerusform>
            <numerusform>%n عناصر في ⁨%1⁩ الآن، وهي غير مشفّرة هناك.</numerusform>
            <numerusform>%n عنصرًا في ⁨%1⁩ الآن، وهي غير مشفّرة هناك.</numerusform>
            <numerusform>%n عنصر في ⁨%1⁩ الآن، وهي غير مشفّرة هناك.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips could not be read.</source>
        <translation>
            <numerusform>قُرئت كل العناصر.</numerusform>
            <numerusform>تعذّرت قراءة عنصر واحد.</numerusform>
            <numerusform>تعذّرت قراءة عنصرين.</numerusform>
            <numerusform>تعذّرت قراءة %n عناصر.</numerusform>
            <numerusform>تعذّرت قراءة %n عنصرًا.</numerusform>
            <numerusform>تعذّرت قراءة %n عنصر.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips that delete themselves were left out.</source>
        <translation>
            <numerusform>لم يُستبعد أي عنصر يُحذف تلقائيًا.</numerusform>
            <numerusform>استُبعد عنصر واحد يُحذف تلقائيًا.</numerusform>
            <numerusform>استُبعد عنصران يُحذفان تلقائيًا.</numerusform>
            <numerusform>استُبعدت %n عناصر تُحذف تلقائيًا.</numerusform>
            <numerusform>استُبعد %n عنصرًا تُحذف تلقائيًا.</numerusform>
            <numerusform>استُبعد %n عنصر تُحذف تلقائيًا.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were imported.</source>
        <translation>
            <numerusform>لم يُستورد أي عنصر.</numerusform>
            <numerusform>استُورد عنصر واحد.</numerusform>
            <numerusform>استُورد عنصران.</numerusform>
            <numerusform>استُوردت %n عناصر.</numerusform>
            <numerusform>استُورد %n عنصرًا.</numerusform>
            <numerusform>استُورد %n عنصر.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were in your history already.</source>
        <translation>
            <numerusform>لم يكن أي عنصر في سجلك من قبل.</numerusform>
            <numerusform>كان عنصر واحد في سجلك من قبل.</numerusform>
            <numerusform>كان عنصران في سجلك من قبل.</numerusform>
            <numerusform>كانت %n عناصر في سجلك من قبل.</numerusform>
            <numerusform>كان %n عنصرًا في سجلك من قبل.</numerusform>
            <numerusform>كان %n عنصر في سجلك من قبل.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were left out, as nothing is saved from their apps.</source>
        <translation>
            <numerusform>لم يُستبعد أي عنصر.</numerusform>
            <numerusform>استُبعد عنصر واحد، إذ لا يُحفظ شيء من تطبيقه.</numerusform>
            <numerusform>استُبعد عنصران، إذ لا يُحفظ شيء من تطبيقيهما.</numerusform>
            <numerusform>استُبعدت %n عناصر، إذ لا يُحفظ شيء من تطبيقاتها.</numerusform>
            <numerusform>استُبعد %n عنصرًا، إذ لا يُحفظ شيء من تطبيقاتها.</numerusform>
            <numerusform>استُبعد %n عنصر، إذ لا يُحفظ شيء من تطبيقاتها.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries had nothing in them that can be kept.</source>
        <translation>
            <numerusform>لم تخلُ أي مدخلة.</numerusform>
            <numerusform>لم يكن في مدخلة واحدة ما يمكن حفظه.</numerusform>
            <numerusform>لم يكن في مدخلتين ما يمكن حفظه.</numerusform>
            <numerusform>لم يكن في %n مدخلات ما يمكن حفظه.</numerusform>
            <numerusform>لم يكن في %n مدخلةً ما يمكن حفظه.</numerusform>
            <numerusform>لم يكن في %n مدخلة ما يمكن حفظه.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>لا عناصر</numerusform>
            <numerusform>عنصر واحد</numerusform>
            <numerusform>عنصران</numerusform>
            <numerusform>%n عناصر</numerusform>
            <numerusform>%n عنصرًا</numerusform>
            <numerusform>%n عنصر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, %1 of them pictures</source>
        <translation>
            <numerusform>لا عناصر، والصور منها: %1</numerusform>
            <numerusform>عنصر واحد، والصور منها: %1</numerusform>
            <numerusform>عنصران، والصور منها: %1</numerusform>
            <numerusform>%n عناصر، والصور منها: %1</numerusform>
            <numerusform>%n عنصرًا، والصور منها: %1</numerusform>
            <numerusform>%n عنصر، والصور منها: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, one of them a picture</source>
        <translation>
            <numerusform>لا عناصر</numerusform>
            <numerusform>عنصر واحد، وهو صورة</numerusform>
            <numerusform>عنصران، أحدهما صورة</numerusform>
            <numerusform>%n عناصر، أحدها صورة</numerusform>
            <numerusform>%n عنصرًا، أحدها صورة</numerusform>
            <numerusform>%n عنصر، أحدها صورة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords, codes or keys were left out.</source>
        <translation>
            <numerusform>لم تُستبعد كلمة سر أو رمز أو مفتاح.</numerusform>
            <numerusform>استُبعدت كلمة سر أو رمز أو مفتاح.</numerusform>
            <numerusform>استُبعد اثنان من كلمات السر أو الرموز أو المفاتيح.</numerusform>
            <numerusform>استُبعدت %n من كلمات السر أو الرموز أو المفاتيح.</numerusform>
            <numerusform>استُبعدت %n من كلمات السر أو الرموز أو المفاتيح.</numerusform>
            <numerusform>استُبعدت %n من كلمات السر أو الرموز أو المفاتيح.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures were left out, as your disk is almost full.</source>
        <translation>
            <numerusform>لم تُستبعد أي صورة.</numerusform>
            <numerusform>استُبعدت صورة واحدة، إذ أوشك قرصك أن يمتلئ.</numerusform>
            <numerusform>استُبعدت صورتان، إذ أوشك قرصك أن يمتلئ.</numerusform>
            <numerusform>استُبعدت %n صور، إذ أوشك قرصك أن يمتلئ.</numerusform>
            <numerusform>استُبعدت %n صورةً، إذ أوشك قرصك أن يمتلئ.</numerusform>
            <numerusform>استُبعدت %n صورة، إذ أوشك قرصك أن يمتلئ.</numerusform>
        </translation>
    </message>
    <message>
        <source>A folder that Vellumry exported</source>
        <translation>مجلد صدّره Vellumry</translation>
    </message>
    <message>
        <source>Bring your clips along</source>
        <translation>أحضر عناصرك معك</translation>
    </message>
    <message>
        <source>Damaged. What can be read: %1</source>
        <translation>تالف. ما يمكن قراءته: %1</translation>
    </message>
    <message>
        <source>Damaged: nothing in it can be read</source>
        <translation>تالف: لا يمكن قراءة شيء منه</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>الدعم بالبريد الإلكتروني</translation>
    </message>
    <message>
        <source>Encrypted: nothing in it can be read</source>
        <translation>مشفّر: لا يمكن قراءة شيء منه</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>صدّر</translation>
    </message>
    <message>
        <source>Export everything</source>
        <translation>صدّر كل شيء</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>جارٍ التصدير…</translation>
    </message>
    <message>
        <source>Exporting… %1</source>
        <translation>جارٍ التصدير… %1</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>صدّر…</translation>
    </message>
    <message>
        <source>Folder to import from</source>
        <translation>المجلد المراد الاستيراد منه</translation>
    </message>
    <message>
        <source>From another clipboard app, or from a folder that Vellumry exported.</source>
        <translation>من تطبيق حافظة آخر، أو من مجلد صدّره Vellumry.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>استورد</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>استورد مجددًا</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>استورد المجلد</translation>
    </message>
    <message>
        <source>Import clips</source>
        <translation>استورد العناصر</translation>
    </message>
    <message>
        <source>Importing %1 of %2…</source>
        <translation>جارٍ استيراد %1 من %2…</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>جارٍ الاستيراد…</translation>
    </message>
    <message>
        <source>Importing… %1</source>
        <translation>جارٍ الاستيراد… %1</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>استورد…</translation>
    </message>
    <message>
        <source>It can't be opened</source>
        <translation>لا يمكن فتحه</translation>
    </message>
    <message>
        <source>It is damaged: what could be read was looked at.</source>
        <translation>إنه تالف: فُحص ما أمكنت قراءته.</translation>
    </message>
    <message>
        <source>Looking for other clipboard apps…</source>
        <translation>جارٍ البحث عن تطبيقات حافظة أخرى…</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>مجلد جديد</translation>
    </message>
    <message>
        <source>No history of CopyQ, GPaste, Klipper or Clipman was found.</source>
        <translation>لم يُعثر على سجل من CopyQ أو GPaste أو Klipper أو Clipman.</translation>
    </message>
    <message>
        <source>Other apps</source>
        <translation>تطبيقات أخرى</translation>
    </message>
    <message>
        <source>Path of the folder</source>
        <translation>مسار المجلد</translation>
    </message>
    <message>
        <source>Privacy policy</source>
        <translation>سياسة الخصوصية</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>أوقف</translation>
    </message>
    <message>
        <source>Stopped. Nothing was left in %1.</source>
        <translation>أُوقف. لم يبقَ شيء في ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Taking it back…</source>
        <translation>جارٍ التراجع…</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>الشروط</translation>
    </message>
    <message>
        <source>Texts, pictures and lists of files become ordinary files, with an index of their times, titles and pins. They are not encrypted there: anybody who can read the folder can read your clips. Clips that delete themselves are left out.</source>
        <translation>تصير النصوص والصور وقوائم الملفات ملفات عادية، ومعها فهرس بأوقاتها وعناوينها وما ثُبّت منها. وهي هناك غير مشفّرة: كل من يستطيع قراءة المجلد يستطيع قراءة عناصرك. وتُستبعد العناصر التي تُحذف تلقائيًا.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing was left in %1.</source>
        <translation>القرص ممتلئ. لم يبقَ شيء في ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The import was taken back.</source>
        <translation>تُرُوجع عن الاستيراد.</translation>
    </message>
    <message>
        <source>The other app's files are only read. Passwords, codes and keys are left out, and clips that you have already.</source>
        <translation>تُقرأ ملفات التطبيق الآخر فحسب. وتُستبعد كلمات السر والرموز والمفاتيح، والعناصر الموجودة لديك من قبل.</translation>
    </message>
    <message>
        <source>The rest was not looked at, as you stopped it.</source>
        <translation>لم يُفحص الباقي لأنك أوقفت العملية.</translation>
    </message>
    <message>
        <source>There is nothing to import here any more.</source>
        <translation>لم يعد هنا ما يُستورد.</translation>
    </message>
    <message>
        <source>To a folder of ordinary files.</source>
        <translation>إلى مجلد من الملفات العادية.</translation>
    </message>
    <message>
        <source>Too large to be read</source>
        <translation>أكبر من أن يُقرأ</translation>
    </message>
    <message>
        <source>Undo Import</source>
        <translation>تراجع عن الاستيراد</translation>
    </message>
    <message>
        <source>Vellumry %1</source>
        <translation>Vellumry %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>المرشحات</translation>
    </message>
    <message>
        <source>Loading the history…</source>
        <translation>جارٍ تحميل السجل…</translation>
    </message>
    <message>
        <source>GNOME did not switch the extension on. Look for Vellumry in the Extensions app.</source>
        <translation>لم يُفعّل جنوم الامتداد. ابحث عن Vellumry في تطبيق الامتدادات.</translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>تفعيل</translation>
    </message>
    <message>
        <source>The extension is on from your next login. Log out and in again to use it.</source>
        <translation>سيعمل الامتداد من تسجيل دخولك القادم. سجّل الخروج ثم ادخل من جديد لاستخدامه.</translation>
    </message>
    <message>
        <source>The extension is on. Vellumry starts again with it.</source>
        <translation>الامتداد مفعّل. يبدأ Vellumry من جديد معه.</translation>
    </message>
    <message>
        <source>Vellumry's extension for GNOME is off</source>
        <translation>امتداد Vellumry لجنوم متوقف</translation>
    </message>
    <message>
        <source>With it, no copy is missed, shortcuts work everywhere and Vellumry pastes for you.</source>
        <translation>معه لا تضيع أي نسخة، وتعمل الاختصارات في كل مكان، ويلصق Vellumry نيابة عنك.</translation>
    </message>
</context>
</TS>
