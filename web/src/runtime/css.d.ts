// Style sheets are imported to bundle them.
declare module "*.css";
