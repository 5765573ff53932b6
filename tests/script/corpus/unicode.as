// versions: 6-8
// Texts and names beyond ASCII.
trace("日本" + "語");     //= 日本語
trace("ソ" + "表" + "\\"); //= ソ表\
// A comment with 表\
名前 = "変数";
trace(名前);              //= 変数
trace(length("日本語"));  //= 3
trace("\u65e5" == "日"); //= true
　trace("全角の空白");    //= 全角の空白
trace(mbsubstring("あいう", 2, 1)); //= い
trace(chr(65) + ord("あ")); //= A12354
